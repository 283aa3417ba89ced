#pragma once

#include <QColor>
#include <QStringView>
#include <optional>

namespace desktop::pages {

// A length of a style: so many pixels, or a part of something that the reader knows.
struct Length {
  enum class Unit { automatic, pixels, percent };
  Unit unit = Unit::automatic;
  double value = 0;

  [[nodiscard]] bool isPixels() const { return unit == Unit::pixels; }
  // The pixels, where it is so many of them or a part of `whole`; otherwise 0.
  [[nodiscard]] double pixels(double whole = 0) const;
  bool operator==(const Length&) const = default;
};

// The largest length that a page may ask for, in pixels; longer ones are cut to it.
inline constexpr double kLongest = 4000;

// A length as styles write it: px, pt, pc, in, cm, mm, em, ex, rem, %, "auto", or a bare number of pixels. `em` is the
// pixels of the element's font. Nothing for anything else, and for numbers that are none.
[[nodiscard]] std::optional<Length> lengthFrom(QStringView text, double em);

// The length of an attribute: a number of pixels or "50%", whatever stands behind it; a number alone may also be "*".
[[nodiscard]] std::optional<Length> attributeLength(QStringView text);

// A colour: #rgb, #rrggbb, rgb(), a name, or one of those that stand for the desktop's own ("windowtext"). An invalid
// colour for "transparent", nothing for what is no colour. `attribute` also takes a colour without "#".
[[nodiscard]] std::optional<QColor> colorFrom(QStringView text);
[[nodiscard]] std::optional<QColor> attributeColor(QStringView text);

}  // namespace desktop::pages
