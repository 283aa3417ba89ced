#include "study/model/ground_area.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace study {
namespace {

// The land between two parallels and two meridians of the ellipsoid, exactly (Snyder, formulas 3-12 and 3-13).
double landBetween(double south, double north, double degreesOfLongitude) {
  constexpr double kDegree = std::numbers::pi / 180;
  constexpr double kEquator = 6'378'137;
  constexpr double kFlattening = 1 / 298.257223563;
  const double e = std::sqrt(kFlattening * (2 - kFlattening));
  const auto zone = [&](double latitude) {
    const double sine = std::sin(latitude * kDegree);
    return (1 - e * e) * (sine / (1 - e * e * sine * sine) - std::log((1 - e * sine) / (1 + e * sine)) / (2 * e));
  };
  return kEquator * kEquator / 2 * degreesOfLongitude * kDegree * (zone(north) - zone(south));
}

// Corners in UTM zone 30 (its meridian is 3 W), as PROJ 9 gives them.
TEST(GroundArea, IsThatOfTheEllipsoid) {
  // 3.3 W to 3.2 W, 40 N to 40.05 N.
  const Area near{{{474392.0696, 4427800.3123},
                   {482928.0540, 4427776.3714},
                   {482940.5123, 4433325.9123},
                   {474410.7572, 4433349.8606}}};
  // 4 E to 4.1 E, seven degrees from the meridian.
  const Area far{{{1097776.6670, 4451293.4372},
                  {1106323.8018, 4451972.9061},
                  {1105878.6534, 4457529.7640},
                  {1097337.8679, 4456850.0941}}};
  EXPECT_NEAR(groundSquareMetres(far, 30) / landBetween(40, 40.05, 0.1), 1, 1e-6);
  EXPECT_GT(squareMetres(far) / groundSquareMetres(far, 30), 1.008);
  EXPECT_NEAR(groundSquareMetres(near, 30) / landBetween(40, 40.05, 0.1), 1, 1e-6);
  EXPECT_LT(squareMetres(near), groundSquareMetres(near, 30)) << "near the meridian the map is too small";
}

TEST(GroundArea, HolesCountAgainstIt) {
  const Ring outer{{500000, 4427000}, {510000, 4427000}, {510000, 4437000}, {500000, 4437000}};
  Ring hole{{502000, 4429000}, {502000, 4431000}, {504000, 4431000}, {504000, 4429000}};
  const double whole = groundSquareMetres(Area{outer}, 30);
  EXPECT_NEAR(whole, 1e8 / 0.9996 / 0.9996, 1e3);
  EXPECT_NEAR(groundSquareMetres(Area{outer, hole}, 30), whole * 0.96, 100);
}

TEST(GroundArea, IsAlikeInTheSouth) {
  const Ring north{{400000, 4427000}, {410000, 4427000}, {410000, 4437000}, {400000, 4437000}};
  const Ring south{{400000, 5563000}, {410000, 5563000}, {410000, 5573000}, {400000, 5573000}};
  EXPECT_NEAR(groundSquareMetres(Area{north}, 30), groundSquareMetres(Area{south}, -30), 1e-3);
}

}  // namespace
}  // namespace study
