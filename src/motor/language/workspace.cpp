#include "motor/language/workspace.h"

#include <algorithm>
#include <charconv>

#include "motor/language/charset.h"
#include "motor/language/parser.h"
#include "text/utf8.h"

namespace motor {

namespace {

// Reads the header's lines; they are ASCII.
class Header {
 public:
  explicit Header(std::string_view bytes) : rest_(bytes) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text::startsWith(rest_, kByteOrderMark)) rest_.remove_prefix(kByteOrderMark.size());
  }

  void read(Workspace& workspace) {
    skipBlankLines();
    if (!text::equalsIgnoringCase(word(), "!workspace")) {
      throw LanguageError({line_, 1}, std::string(word()), "el archivo no es un entorno de trabajo: falta !Workspace");
    }
    nextLine();
    for (skipBlankLines(); text::startsWith(rest_, "!"); skipBlankLines()) {
      readLine(workspace);
      nextLine();
    }
  }

  [[nodiscard]] std::string_view rest() const { return rest_; }
  [[nodiscard]] int line() const { return line_; }
  [[nodiscard]] int charsetLine() const { return charsetLine_; }

 private:
  [[nodiscard]] std::string_view lineText() const { return rest_.substr(0, rest_.find_first_of("\r\n")); }
  [[nodiscard]] std::string_view word() const { return lineText().substr(0, lineText().find_first_of(" \t")); }
  [[nodiscard]] std::string argument() const { return text::trim(lineText().substr(word().size())); }

  void nextLine() {
    const std::size_t end = lineText().size();
    if (end < rest_.size()) ++line_;
    rest_.remove_prefix(std::min(rest_.size(), end + (rest_.substr(end, 2) == "\r\n" ? 2 : 1)));
  }

  void skipBlankLines() {
    while (!rest_.empty() && text::trim(lineText()).empty()) nextLine();
  }

  void readLine(Workspace& workspace) {
    const std::string value = argument();
    if (text::equalsIgnoringCase(word(), "!version")) {
      std::from_chars(value.data(), value.data() + value.size(), workspace.version);
    } else if (text::equalsIgnoringCase(word(), "!charset")) {
      workspace.charset = value;
      charsetLine_ = line_;
    } else {
      throw LanguageError({line_, 1}, std::string(word()), "se esperaba !Version o !Charset");
    }
  }

  std::string_view rest_;
  int line_ = 1;
  int charsetLine_ = 1;
};

}  // namespace

Workspace parseWorkspace(std::string_view bytes) {
  Workspace workspace;
  Header header(bytes);
  header.read(workspace);
  const std::string name = workspace.charset.empty() ? "Neutral" : workspace.charset;
  const auto charset = charsetNamed(name);
  if (!charset) {
    throw LanguageError(
        {header.charsetLine(), 1}, name,
        isUnreadableCharset(name) ? "este juego de caracteres no se puede leer" : "juego de caracteres desconocido");
  }
  Program program = parseProgramWhole(toUtf8(header.rest(), *charset), {header.line(), 1});
  workspace.statements = std::move(program.statements);
  workspace.passedOver = std::move(program.passedOver);
  return workspace;
}

}  // namespace motor
