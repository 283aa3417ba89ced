#pragma once

#include <QColor>
#include <QString>
#include <array>
#include <cstdint>

#include "hosts/desktop/pages/reading/css_values.h"

namespace desktop::pages {

enum class Align : std::uint8_t { left, center, right, justify };
enum class VerticalAlign : std::uint8_t { baseline, top, middle, bottom, sub, super };
enum class WhiteSpace : std::uint8_t { normal, nowrap, pre, preWrap };
enum class LetterCase : std::uint8_t { asWritten, upper, lower, capitalized };
enum class ListMark : std::uint8_t { none, disc, circle, square, number, letter, capitalLetter, roman, capitalRoman };
enum class LineStyle : std::uint8_t { none, solid, dashed, dotted, doubled };

// How the characters of a text look.
struct TextStyle {
  double pixels = 14;  // of the font
  int weight = 400;
  bool isItalic = false;
  bool isUnderlined = false;
  bool isStruckOut = false;
  VerticalAlign script = VerticalAlign::baseline;  // or sub, super
  LetterCase letters = LetterCase::asWritten;
  QString families;
  QColor color;       // invalid: the reader's own
  QColor background;  // of the text itself; invalid: none

  bool operator==(const TextStyle&) const = default;
};

struct Border {
  double pixels = 0;
  LineStyle line = LineStyle::none;
  QColor color;  // invalid: that of the text

  [[nodiscard]] bool isSeen() const { return line != LineStyle::none && pixels > 0; }
  bool operator==(const Border&) const = default;
};

// The sides of a box, in the order in which styles name them.
enum Side : std::size_t { kTop, kRight, kBottom, kLeft };
template <class Value>
using Sides = std::array<Value, 4>;

// How an element looks: what it hands on to what it holds, and its own box.
struct PageStyle {
  TextStyle text;
  Align align = Align::left;
  WhiteSpace whiteSpace = WhiteSpace::normal;
  VerticalAlign vertical = VerticalAlign::baseline;  // handed on within tables
  ListMark mark = ListMark::disc;
  double lineHeight = 0;  // times the font; 0: the font's own
  double textIndent = 0;  // pixels, as all lengths here
  bool collapsesBorders = false;
  double borderSpacing = 2;

  Sides<Length> margin{};  // automatic: 0, but on both sides of a block: in the middle
  Sides<double> padding{};
  Sides<Border> border{};
  QColor background;  // invalid: none
  Length width;
  double minWidth = 0;
  double maxWidth = 0;  // 0: none
  double height = 0;
  bool isHidden = false;

  // What an element in this one begins with.
  [[nodiscard]] PageStyle handedOn() const;
  [[nodiscard]] bool hasBorder() const;
  bool operator==(const PageStyle&) const = default;
};

}  // namespace desktop::pages
