#include "motor/language/lexer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "motor/language/text_limit.h"
#include "text/utf8.h"

namespace motor {

namespace {

constexpr std::array<std::string_view, 3> kLongSigns = {"<>", "<=", ">="};
constexpr std::string_view kSigns = "=<>+-*/\\^&(),.:;#";

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isHexDigit(char c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }
bool isAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

class Lexer {
 public:
  Lexer(std::string_view source, Position start) : source_(source), position_(start) {}

  std::vector<Token> run() {
    std::vector<Token> tokens;
    tokens.reserve(std::min(source_.size() / 4 + 2, kMostTokens));
    for (;;) {
      skipBlanksAndComments();
      tokens.push_back(read());
      if (tokens.back().kind == Token::Kind::end) return tokens;
      if (tokens.size() > kMostTokens)
        throw LanguageError(tokens.back().position, tokens.back().text, "el texto tiene demasiadas palabras");
    }
  }

 private:
  [[nodiscard]] char at(std::size_t i) const { return i < source_.size() ? source_[i] : '\0'; }
  [[nodiscard]] bool atEnd() const { return next_ >= source_.size(); }

  // The bytes of the character at `i`, at least one.
  [[nodiscard]] std::size_t characterEnd(std::size_t i) const {
    ++i;
    while (i < source_.size() && isContinuation(source_[i])) ++i;
    return i;
  }

  // Letters beyond ASCII: everything from U+00C0 on, and the three letters that stand before it.
  [[nodiscard]] bool isLetterAt(std::size_t i) const {
    const char c = at(i);
    if (static_cast<unsigned char>(c) < 0x80) return isAsciiLetter(c) || c == '_';
    const std::u32string one = text::decode(source_.substr(i, characterEnd(i) - i));
    const char32_t code = one.size() == 1 ? one.front() : 0;
    const bool malformed = code >= 0xD800 && code < 0xE000;
    return !malformed &&
           ((code >= 0xC0 && code != 0xD7 && code != 0xF7) || code == 0xAA || code == 0xB5 || code == 0xBA);
  }

  // A line ends with CR, LF or both.
  [[nodiscard]] bool isLineEnd() const { return at(next_) == '\n' || at(next_) == '\r'; }

  void advance() {
    if (at(next_) == '\n' || (at(next_) == '\r' && at(next_ + 1) != '\n')) {
      ++position_.line;
      position_.column = 1;
    } else {
      ++position_.column;
    }
    next_ = characterEnd(next_);
  }
  void advanceTo(std::size_t end) {
    while (next_ < end) advance();
  }

  void skipBlanksAndComments() {
    while (!atEnd()) {
      const char c = at(next_);
      if (c == '\'') {
        while (!atEnd() && !isLineEnd()) advance();
      } else if (c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f' || c == '\v') {
        advance();
      } else {
        return;
      }
    }
  }

  Token read() {
    Token token;
    token.position = position_;
    token.begin = next_;
    if (!atEnd()) readInto(token);
    token.end = next_;
    return token;
  }

  void readInto(Token& token) {
    const char c = at(next_);
    if (c == '"') return readText(token);
    if (isDigit(c) || (c == '.' && isDigit(at(next_ + 1)))) return readNumber(token);
    if (c == '&' && isHexNumber()) return readHexNumber(token);
    if (isLetterAt(next_)) return readName(token);
    readSign(token);
  }

  void readText(Token& token) {
    token.kind = Token::Kind::text;
    advance();
    for (;;) {
      if (atEnd() || isLineEnd()) {
        throw LanguageError(token.position, std::string(source_.substr(token.begin, next_ - token.begin)),
                            "falta la comilla de cierre");
      }
      if (at(next_) == '"') {
        advance();
        if (at(next_) != '"') return;
      }
      if (token.text.size() >= kLongestText) throw LanguageError(token.position, "\"", "el texto es demasiado largo");
      const std::size_t begin = next_;
      advance();
      token.text += source_.substr(begin, next_ - begin);
    }
  }

  void readNumber(Token& token) {
    std::size_t end = next_;
    while (isDigit(at(end))) ++end;
    if (at(end) == '.') ++end;
    while (isDigit(at(end))) ++end;
    if (at(end) == 'e' || at(end) == 'E') {
      const std::size_t digits = end + (at(end + 1) == '+' || at(end + 1) == '-' ? 2U : 1U);
      if (isDigit(at(digits))) end = digits;
      while (isDigit(at(end))) ++end;
    }
    setNumber(token, end);
    const auto result = std::from_chars(token.text.data(), token.text.data() + token.text.size(), token.number);
    if (result.ec != std::errc() && !isTiny(token.text)) {
      throw LanguageError(token.position, token.text, "el número es demasiado grande");
    }
  }

  // A number that is out of range because it is too close to 0 counts as 0.
  [[nodiscard]] static bool isTiny(const std::string& digits) {
    return digits.find("e-") != std::string::npos || digits.find("E-") != std::string::npos;
  }

  [[nodiscard]] bool isHexNumber() const {
    if (at(next_ + 1) != 'h' && at(next_ + 1) != 'H') return false;
    std::size_t end = next_ + 2;
    while (isHexDigit(at(end))) ++end;
    return end > next_ + 2 && end <= next_ + 10 && !isLetterAt(end);
  }

  void readHexNumber(Token& token) {
    std::size_t end = next_ + 2;
    while (isHexDigit(at(end))) ++end;
    setNumber(token, end);
    std::uint32_t value = 0;
    std::from_chars(token.text.data() + 2, token.text.data() + token.text.size(), value, 16);
    token.number = value;
  }

  void setNumber(Token& token, std::size_t end) {
    token.kind = Token::Kind::number;
    advanceTo(end);
    token.text = source_.substr(token.begin, end - token.begin);
  }

  void readName(Token& token) {
    token.kind = Token::Kind::name;
    while (!atEnd() && (isLetterAt(next_) || isDigit(at(next_)))) advance();
    if (at(next_) == '$') advance();
    token.text = source_.substr(token.begin, next_ - token.begin);
    token.folded = text::lower(token.text);
  }

  void readSign(Token& token) {
    token.kind = Token::Kind::sign;
    const std::string_view two = source_.substr(next_, 2);
    const bool isLong = std::find(kLongSigns.begin(), kLongSigns.end(), two) != kLongSigns.end();
    const std::size_t end = isLong ? next_ + 2 : characterEnd(next_);
    token.text = source_.substr(next_, end - next_);
    if (!isLong && kSigns.find(token.text) == std::string_view::npos) {
      throw LanguageError(token.position, token.text, "carácter que no pertenece al lenguaje");
    }
    advanceTo(end);
  }

  std::string_view source_;
  std::size_t next_ = 0;
  Position position_;
};

}  // namespace

std::vector<Token> tokenize(std::string_view source, Position start) { return Lexer(source, start).run(); }

}  // namespace motor
