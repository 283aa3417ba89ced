#include "motor/window/lettering.h"

#include "motor/drawing/fonts.h"

namespace motor {

QFont lettering(const char* family, double points, bool bold) {
  constexpr int kBold = 1;
  Font font;
  font.name = family;
  font.size = points;
  font.style = bold ? kBold : 0;
  return toQFont(font);
}

}  // namespace motor
