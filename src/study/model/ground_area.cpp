#include "study/model/ground_area.h"

#include <cmath>

namespace study {

namespace {

// WGS 84 and UTM.
constexpr double kEquator = 6'378'137;  // metres from the centre
constexpr double kFlattening = 1 / 298.257223563;
constexpr double kEccentricity = kFlattening * (2 - kFlattening);  // squared
constexpr double kMeridianScale = 0.9996;
constexpr double kFalseEasting = 500'000;
constexpr double kFalseNorthingSouth = 10'000'000;

// The latitude whose arc of meridian from the equator has this length, in radians (Snyder, formula 3-26).
double latitudeAt(double arc) {
  const double e2 = kEccentricity;
  const double mu = arc / (kEquator * (1 - e2 / 4 - 3 * e2 * e2 / 64 - 5 * e2 * e2 * e2 / 256));
  const double root = std::sqrt(1 - e2);
  const double e1 = (1 - root) / (1 + root);
  return mu + (3 * e1 / 2 - 27 * e1 * e1 * e1 / 32) * std::sin(2 * mu) + 21 * e1 * e1 / 16 * std::sin(4 * mu);
}

// Of the sphere that fits the ellipsoid best there.
double radiusAt(double latitude) {
  const double sine = std::sin(latitude);
  return kEquator * std::sqrt(1 - kEccentricity) / (1 - kEccentricity * sine * sine);
}

// The integral of 1 / scale^2 from the meridian to a point.
double groundEasting(const Point& p, double falseNorthing) {
  const double radius = kMeridianScale * radiusAt(latitudeAt((p.y - falseNorthing) / kMeridianScale));
  return radius / (kMeridianScale * kMeridianScale) * std::tanh((p.x - kFalseEasting) / radius);
}

// By Green's theorem, each side by Simpson's rule.
double groundSquareMetres(const Ring& ring, double falseNorthing) {
  double sum = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Point& a = ring[i];
    const Point& b = ring[(i + 1) % ring.size()];
    const Point middle{(a.x + b.x) / 2, (a.y + b.y) / 2};
    sum +=
        (groundEasting(a, falseNorthing) + 4 * groundEasting(middle, falseNorthing) + groundEasting(b, falseNorthing)) /
        6 * (b.y - a.y);
  }
  return sum;
}

}  // namespace

double groundSquareMetres(const Area& area, int utmZone) {
  double sum = 0;
  for (const Ring& ring : area) sum += groundSquareMetres(ring, utmZone < 0 ? kFalseNorthingSouth : 0);
  return sum;
}

}  // namespace study
