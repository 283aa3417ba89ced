#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace motor {

// The character sets of workspaces and tables that are read without help from outside.
enum class Charset {
  neutral,
  utf8,
  iso8859_1,
  windowsLatin1,
  windowsLatin2,
  windowsCyrillic,
  codePage437,
  codePage850,
  codePage852,
};

// By its name ("WindowsLatin1", "ISO8859-1", "UTF-8", "Neutral", ...) without regard to case.
[[nodiscard]] std::optional<Charset> charsetNamed(std::string_view name);

// Whether the name is that of a character set that cannot be read here ("WindowsJapanese").
[[nodiscard]] bool isUnreadableCharset(std::string_view name);

// The text in UTF-8. A byte that means nothing in its charset becomes U+FFFD; `neutral` is UTF-8 where the bytes are
// valid UTF-8, else WindowsLatin1. A UTF-8 byte order mark is left out.
[[nodiscard]] std::string toUtf8(std::string_view bytes, Charset charset);

}  // namespace motor
