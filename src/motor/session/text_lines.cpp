#include "motor/session/text_lines.h"

namespace motor {

std::string withLineBreaks(std::string text) {
  for (std::size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n", at + 1)) {
    text.replace(at, 2, 1, '\n');
  }
  return text;
}

}  // namespace motor
