#include "study/input/settings_text.h"

#include <charconv>
#include <cstdint>
#include <optional>
#include <utility>

#include "study/input/input_text.h"
#include "text/utf8.h"

namespace study {

namespace {

// A line that cannot be read; the parser goes on with the next one.
struct SyntaxFault {
  std::string message;
  std::string remedy;
};

bool isKeyCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
}

std::optional<long> wholeNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  long number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

class Parser {
 public:
  Parser(std::string_view text, const FileFaults& faults) : text_(text), faults_(faults) {}

  std::vector<Setting> parse() {
    while (true) {
      skipBlankLines();
      if (isAtEnd()) return std::move(settings_);
      const std::size_t line = line_;
      try {
        readLine();
      } catch (const SyntaxFault& fault) {
        faults_.add(FaultKind::settingsSyntax, line, fault.message, fault.remedy);
        skipLine();
      }
    }
  }

 private:
  [[nodiscard]] bool isAtEnd() const { return at_ >= text_.size(); }
  [[nodiscard]] char here() const { return isAtEnd() ? '\n' : text_[at_]; }
  [[nodiscard]] bool isAt(std::string_view expected) const { return text_.substr(at_).starts_with(expected); }

  void step() {
    if (here() == '\n') ++line_;
    ++at_;
  }

  void skipBlanks() {
    while (!isAtEnd() && (here() == ' ' || here() == '\t' || here() == '\r')) step();
  }

  void skipLine() {
    while (!isAtEnd() && here() != '\n') step();
  }

  void skipComment() {
    skipBlanks();
    if (here() == '#') skipLine();
  }

  void skipBlankLines() {
    skipComment();
    while (!isAtEnd() && here() == '\n') {
      step();
      skipComment();
    }
  }

  std::string readKey() {
    const std::size_t start = at_;
    while (!isAtEnd() && isKeyCharacter(here())) step();
    return std::string(text_.substr(start, at_ - start));
  }

  void readLine() {
    const std::size_t line = line_;
    if (here() == '[') {
      readHeading();
    } else {
      std::string key = readKey();
      skipBlanks();
      if (key.empty() || here() != '=') {
        throw SyntaxFault{"the line is neither a setting nor a heading", "write key = value, [section] or # comment"};
      }
      step();
      skipBlanks();
      settings_.push_back({section_, std::move(key), readValue(), line});
    }
    skipComment();
    if (here() != '\n') {
      throw SyntaxFault{"text follows the end of the line's setting or heading",
                        "write one a line; a comment begins with #"};
    }
  }

  void readHeading() {
    step();
    skipBlanks();
    std::string name = readKey();
    skipBlanks();
    if (name.empty() || here() != ']') throw SyntaxFault{"the heading of a section is not closed", "write [section]"};
    step();
    section_ = std::move(name);
  }

  SettingValue readValue() {
    if (isAt("\"\"\"")) return readLongText();
    if (here() == '"') return readText();
    if (here() == '[') return readList();
    if (here() == '\'') return readSingleQuoted();
    const std::string_view word = readWord();
    if (word.empty()) throw SyntaxFault{"the setting has no value", "write one after the ="};
    if (const std::optional<long> number = wholeNumber(word)) return *number;
    return OtherValue{std::string(word)};
  }

  // Not of the subset that is read; taken as a whole to be told of.
  OtherValue readSingleQuoted() {
    const std::size_t start = at_;
    const std::size_t close = text_.find_first_of("'\n", at_ + 1);
    if (close == std::string_view::npos || text_[close] == '\n') {
      throw SyntaxFault{"the value begins with a single quote", "write texts in double quotes"};
    }
    at_ = close + 1;
    return {std::string(text_.substr(start, at_ - start))};
  }

  // Up to a blank, a comment or the end of a list's item.
  std::string_view readWord() {
    const std::size_t start = at_;
    while (!isAtEnd() && std::string_view(" \t\r\n#,]").find(here()) == std::string_view::npos) step();
    return text_.substr(start, at_ - start);
  }

  std::string readText() {
    step();
    std::string value;
    while (here() != '"') {
      if (here() == '\n') throw SyntaxFault{"the text is not closed", "close it with a \" on the same line"};
      readCharacter(value);
    }
    step();
    return value;
  }

  std::string readLongText() {
    at_ += 3;
    if (isAt("\r\n")) step();
    if (!isAtEnd() && here() == '\n') step();
    std::string value;
    while (!isAt("\"\"\"")) {
      if (isAtEnd()) throw SyntaxFault{"the text is not closed", "close it with \"\"\""};
      if (here() == '\r') {
        step();
      } else {
        readCharacter(value);
      }
    }
    at_ += 3;
    return value;
  }

  void readCharacter(std::string& value) {
    if (here() != '\\') {
      value += here();
      step();
      return;
    }
    step();
    const char escape = here();
    step();
    if (escape == 'u') {
      readCode(value);
      return;
    }
    constexpr std::string_view kEscapes = "\"\\nt";
    constexpr std::string_view kMeanings = "\"\\\n\t";
    const std::size_t known = kEscapes.find(escape);
    if (known == std::string_view::npos) {
      throw SyntaxFault{"the text holds an unknown escape", R"(write \\ for a backslash, \" for a quote)"};
    }
    value += kMeanings[known];
  }

  void readCode(std::string& value) {
    const std::string_view digits = text_.substr(at_, 4);
    std::uint32_t code = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    if (error != std::errc() || end != digits.data() + 4 || (code >= 0xD800 && code < 0xE000)) {
      throw SyntaxFault{"the text holds an unknown escape", R"(write \u and four hexadecimal digits)"};
    }
    at_ += 4;
    value += text::encode(std::u32string(1, code));
  }

  SettingValue readList() {
    step();
    std::vector<long> numbers;
    std::string words;
    bool isOfNumbers = true;
    skipBlankLines();
    while (here() != ']') {
      const bool isText = here() == '"';
      const std::string word = isText ? readText() : std::string(readWord());
      if (word.empty() && !isText) throw SyntaxFault{"the list is not closed or lacks an item", "write [1, 2]"};
      const std::optional<long> number = isText ? std::nullopt : wholeNumber(word);
      isOfNumbers = isOfNumbers && number;
      numbers.push_back(number.value_or(0));
      words += (words.empty() ? "" : ", ") + word;
      skipBlankLines();
      if (here() == ',') {
        step();
        skipBlankLines();
      } else if (here() != ']') {
        throw SyntaxFault{"the list is not closed or lacks an item", "write [1, 2]"};
      }
    }
    step();
    if (!isOfNumbers) return OtherValue{"[" + words + "]"};
    return numbers;
  }

  std::string_view text_;
  FileFaults faults_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
  std::string section_;
  std::vector<Setting> settings_;
};

}  // namespace

std::vector<Setting> parseSettings(std::string_view text, const FileFaults& faults) {
  return Parser(text, faults).parse();
}

}  // namespace study
