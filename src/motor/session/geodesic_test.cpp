#include "motor/session/geodesic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace motor {
namespace {

double degrees(double degree, double minute, double second) {
  return std::copysign(std::abs(degree) + minute / 60 + second / 3600, degree);
}

TEST(Geodesic, GivesPublishedLengths) {
  const Ellipsoid wgs84;
  const Ellipsoid grs80{6378137, 1 / 298.257222101};
  const Ellipsoid bessel{6377397.155, 1 / 299.1528128};
  struct Case {
    const char* what;
    Ellipsoid ellipsoid;
    Point from, to;
    double metres, precision;
  };
  for (const Case& c : {
           // C. F. F. Karney, "Algorithms for geodesics" (2013), the examples of its tables.
           Case{"direct problem", wgs84, {0, 40}, {137.84490004377, 41.79331020506}, 10000000, 1e-3},
           Case{"short line", wgs84, {0, -30.12345}, {0.00005, -30.12344}, 4.944208, 1e-6},
           Case{"almost antipodal", wgs84, {0, -30}, {179.8, 29.9}, 19989832.827610, 1e-6},
           // Geoscience Australia's line from Flinders Peak to Buninyong.
           Case{"Flinders Peak",
                grs80,
                {degrees(144, 25, 29.52440), degrees(-37, 57, 3.72030)},
                {degrees(143, 55, 35.38390), degrees(-37, 39, 10.15610)},
                54972.271,
                1e-3},
           // T. Vincenty, "Direct and inverse solutions of geodesics" (1975), line (a), on Bessel's ellipsoid.
           Case{"Vincenty's line (a)",
                bessel,
                {0, degrees(55, 45, 0)},
                {degrees(108, 13, 0), degrees(-33, 26, 0)},
                14110526.170,
                2e-3},
           // The quarter of a meridian and of the equator.
           Case{"to the pole", wgs84, {12, 0}, {77, 90}, 10001965.729, 1e-3},
           Case{"along the equator", wgs84, {-170, 0}, {100, 0}, 6378137 * std::numbers::pi / 2, 1e-6},
           Case{"opposite on the equator", wgs84, {0, 0}, {180, 0}, 2 * 10001965.729, 2e-3},
       }) {
    EXPECT_NEAR(geodesicMetres(c.ellipsoid, c.from, c.to), c.metres, c.precision) << c.what;
    EXPECT_NEAR(geodesicMetres(c.ellipsoid, c.to, c.from), c.metres, c.precision) << c.what << ", back";
  }
}

// On a sphere it is a great circle, whose length the haversine formula gives.
TEST(Geodesic, IsAGreatCircleOnASphere) {
  const Ellipsoid sphere{6371000, 0};
  const double toRadians = std::numbers::pi / 180;
  for (const double longitude : {0.0, 1e-6, 1.0, 60.0, 179.0}) {
    for (const double latitude : {-89.0, -10.0, 0.0, 40.0, 41.0}) {
      const Point from{-3, 40};
      const Point to{-3 + longitude, latitude};
      const double up = std::sin((to.y - from.y) * toRadians / 2);
      const double across = std::sin(longitude * toRadians / 2);
      const double haversine = up * up + std::cos(from.y * toRadians) * std::cos(to.y * toRadians) * across * across;
      EXPECT_NEAR(geodesicMetres(sphere, from, to), 2 * 6371000 * std::asin(std::sqrt(haversine)), 1e-6)
          << longitude << " " << latitude;
    }
  }
}

TEST(Geodesic, IsNothingFromAPointToItselfAndHasALengthEverywhere) {
  const Ellipsoid wgs84;
  for (const double latitude : {-90.0, -45.0, 0.0, 1e-9, 90.0}) {
    EXPECT_NEAR(geodesicMetres(wgs84, {5, latitude}, {5, latitude}), 0, 1e-6) << latitude;
    EXPECT_NEAR(geodesicMetres(wgs84, {5, latitude}, {365, latitude}), 0, 1e-6) << latitude;
    for (const double other : {-90.0, -45.0, 0.0, 45.0, 90.0}) {
      for (const double longitude : {0.0, 90.0, 179.5, 180.0}) {
        const double metres = geodesicMetres(wgs84, {0, latitude}, {longitude, other});
        EXPECT_TRUE(metres >= 0 && metres < 20003932) << latitude << " " << longitude << " " << other;
      }
    }
  }
  EXPECT_TRUE(std::isnan(geodesicMetres(wgs84, {std::numeric_limits<double>::quiet_NaN(), 0}, {0, 0})));
}

}  // namespace
}  // namespace motor
