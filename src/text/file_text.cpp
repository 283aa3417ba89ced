#include "text/file_text.h"

#include <array>
#include <fstream>

namespace text {

std::optional<std::string> wholeFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::string bytes;
  std::array<char, 65536> block;
  do {
    in.read(block.data(), block.size());
    bytes.append(block.data(), static_cast<std::size_t>(in.gcount()));
  } while (in);
  if (in.bad()) return std::nullopt;
  return bytes;
}

std::string fromPath(const std::filesystem::path& path) {
  const std::u8string s = path.u8string();
  return {s.begin(), s.end()};
}

std::filesystem::path toPath(std::string_view utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

}  // namespace text
