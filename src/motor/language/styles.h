#pragma once

#include <cstdint>
#include <string>

// Drawing styles as the statement language writes them. Colours are red * 65536 + green * 256 + blue.
namespace motor {

using Colour = std::int32_t;

// Pen(width, pattern, colour). Width 1-7 pixels, or points * 10 + 10 when above 10; pattern 1 draws nothing, 2 is
// solid, 3-118 are dashed and compound lines, plus 128 interleaved.
struct Pen {
  int width = 1;
  int pattern = 2;
  Colour colour = 0;
  bool operator==(const Pen&) const = default;
};

// Brush(pattern, fore[, back]). Pattern 1 fills nothing, 2 is solid, 3-8 and 12-71 are hatches; a back colour of
// kTransparent leaves the gaps of a hatch open.
inline constexpr Colour kTransparent = -1;
struct Brush {
  int pattern = 2;
  Colour fore = 0xFFFFFF;
  Colour back = kTransparent;
  bool operator==(const Brush&) const = default;
};

// Symbol(shape, colour, size) of the 3.0 set (31 draws nothing, 32-67 shapes; size in points 1-48),
// Symbol(shape, colour, size, font, style, angle) of a font, or Symbol(file, colour, size, style) of a picture.
struct Symbol {
  int shape = 35;
  Colour colour = 0;
  int size = 12;
  std::string font;  // of a font's character
  std::string file;  // of a picture
  int style = 0;     // 1 bold, 16 border, 32 shadow, 256 halo; for a picture 1 background, 2 colour, 4 actual size
  double angle = 0;  // degrees, counter-clockwise
  bool operator==(const Symbol&) const = default;
};

// Font(name, style, size, fore[, back]). Style sums 1 bold, 2 italic, 4 underline, 8 strike-out, 32 shadow, 256 halo,
// 512 capitals, 1024 expanded; back is the halo's colour or the fill's.
struct Font {
  std::string name = "Arial";
  int style = 0;
  double size = 9;  // points; 0 follows the map's scale
  Colour fore = 0;
  Colour back = kTransparent;
  bool operator==(const Font&) const = default;
};

// How the lines of a text stand among each other.
enum class TextJustify : std::uint8_t { left, center, right };

}  // namespace motor
