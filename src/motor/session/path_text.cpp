#include "motor/session/path_text.h"

namespace motor {

std::string textOf(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::filesystem::path pathOf(const std::string& text) { return {std::u8string(text.begin(), text.end())}; }

}  // namespace motor
