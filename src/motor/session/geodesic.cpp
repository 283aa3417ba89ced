#include "motor/session/geodesic.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace motor {
namespace {

constexpr double kRadiansPerDegree = std::numbers::pi / 180;
constexpr double kTiny = 1e-300;  // stands for a latitude right below the equator

// Gauss and Legendre's rule of five points on panels of half a quarter turn at most: exact to the last digits for the
// gentle integrands of an ellipsoid.
template <typename Integrand>
double integral(double from, double to, Integrand integrand) {
  constexpr int kPanels = 8;
  constexpr std::array<std::pair<double, double>, 5> kRule{{{-0.90617984593866399, 0.23692688505618909},
                                                            {-0.53846931010568309, 0.47862867049936647},
                                                            {0, 0.56888888888888889},
                                                            {0.53846931010568309, 0.47862867049936647},
                                                            {0.90617984593866399, 0.23692688505618909}}};
  const double half = (to - from) / (2 * kPanels);
  double sum = 0;
  for (int panel = 0; panel < kPanels; ++panel) {
    const double middle = from + (2 * panel + 1) * half;
    for (const auto& [place, weight] : kRule) sum += weight * integrand(middle + half * place);
  }
  return sum * half;
}

// The sine and cosine of an angle.
struct Direction {
  double sine;
  double cosine;
};

// The latitude on the sphere that stands for the ellipsoid.
Direction reduced(double latitude, double flattening) {
  const double phi = latitude * kRadiansPerDegree;
  const double beta = std::atan2((1 - flattening) * std::sin(phi), std::cos(phi));
  return {std::sin(beta), std::cos(beta)};
}

// The geodesic that leaves the first point, which is farther from the equator and not north of it, under an azimuth,
// up to where it meets the second point's parallel going north. Angles as in the paper.
class Path {
 public:
  Path(const Ellipsoid& ellipsoid, Direction first, Direction second, Direction azimuth)
      : ellipsoid_(ellipsoid), sineAlpha0_(azimuth.sine * first.cosine) {
    const double f = ellipsoid.flattening;
    const double cosineAlpha0 = std::hypot(azimuth.cosine, azimuth.sine * first.sine);
    const double secondEccentricitySquared = f * (2 - f) / ((1 - f) * (1 - f));
    kSquared_ = secondEccentricitySquared * cosineAlpha0 * cosineAlpha0;
    const double north1 = azimuth.cosine * first.cosine;
    const double north2 =
        std::sqrt(north1 * north1 + std::max(0.0, (first.sine - second.sine) * (first.sine + second.sine)));
    sigma1_ = std::atan2(first.sine, north1);
    sigma2_ = std::atan2(second.sine, north2);
    omega_ = std::atan2(sineAlpha0_ * second.sine, north2) - std::atan2(sineAlpha0_ * first.sine, north1);
  }

  // Radians of longitude between its ends.
  [[nodiscard]] double longitude() const {
    const double f = ellipsoid_.flattening;
    if (f == 0) return omega_;
    return omega_ - f * sineAlpha0_ * integral(sigma1_, sigma2_, [&](double sigma) {
                      return (2 - f) / (1 + (1 - f) * stretch(sigma));
                    });
  }

  [[nodiscard]] double metres() const {
    const double b = ellipsoid_.semiMajorAxis * (1 - ellipsoid_.flattening);
    return b * integral(sigma1_, sigma2_, [&](double sigma) { return stretch(sigma); });
  }

 private:
  [[nodiscard]] double stretch(double sigma) const {
    const double sine = std::sin(sigma);
    return std::sqrt(1 + kSquared_ * sine * sine);
  }

  const Ellipsoid& ellipsoid_;
  double sineAlpha0_;
  double kSquared_ = 0;
  double sigma1_ = 0;
  double sigma2_ = 0;
  double omega_ = 0;
};

// An azimuth by its cotangent, which is as fine right beside east as beside north and south.
Direction azimuthOf(double cotangent) {
  const double length = std::hypot(1, cotangent);
  return {1 / length, cotangent / length};
}

}  // namespace

double geodesicMetres(const Ellipsoid& ellipsoid, Point from, Point to) {
  const double longitude = std::abs(std::remainder(to.x - from.x, 360.0)) * kRadiansPerDegree;
  double latitude1 = std::clamp(from.y, -90.0, 90.0);
  double latitude2 = std::clamp(to.y, -90.0, 90.0);
  if (!std::isfinite(longitude + latitude1 + latitude2)) return std::nan("");
  if (std::abs(latitude1) < std::abs(latitude2)) std::swap(latitude1, latitude2);
  if (latitude1 > 0) {
    latitude1 = -latitude1;
    latitude2 = -latitude2;
  }
  if (latitude1 == 0 && longitude <= (1 - ellipsoid.flattening) * std::numbers::pi) {
    return ellipsoid.semiMajorAxis * longitude;
  }
  Direction first = reduced(latitude1, ellipsoid.flattening);
  const Direction second = reduced(latitude2, ellipsoid.flattening);
  first.sine = std::min(first.sine, -kTiny);

  // The longitude that is reached grows as the azimuth turns from north over east to south.
  const auto pathAt = [&](double cotangent) { return Path(ellipsoid, first, second, azimuthOf(cotangent)); };
  const double side = pathAt(0).longitude() > longitude ? 1 : -1;
  double small = 1e-100;
  double large = 1e18;
  while (large > small * (1 + 1e-15)) {
    const double middle = std::sqrt(small) * std::sqrt(large);
    if (middle <= small || middle >= large) break;
    const bool isTooFar = pathAt(side * middle).longitude() > longitude;
    (isTooFar == (side > 0) ? small : large) = middle;
  }
  return pathAt(side * large).metres();
}

}  // namespace motor
