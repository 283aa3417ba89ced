#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace desktop::pages {

struct Attribute {
  QString name;   // in lower case
  QString value;  // references replaced

  bool operator==(const Attribute&) const = default;
};

struct HtmlToken {
  enum class Kind { start, end, text };
  Kind kind = Kind::text;
  QString name;                       // of a tag, in lower case; a prefix ("o:p") stays
  std::vector<Attribute> attributes;  // of a start tag
  QString text;                       // references replaced, but in what holds no markup (`style`)
};

// Reads HTML as browsers do, whatever is wrong with it: every text is some tokens. Comments, declarations, processing
// instructions and conditional marks ("<![if ...]>") are left out; so is all that scripts and islands of data
// (`<xml>`) hold. The text of `style` and `title` comes as one token, with no tags inside.
class HtmlReader {
 public:
  // `html` outlives the reader.
  explicit HtmlReader(QStringView html) : html_(html) {}

  // The next token, or nothing at the end.
  [[nodiscard]] std::optional<HtmlToken> next();

 private:
  [[nodiscard]] std::optional<HtmlToken> markup();
  [[nodiscard]] HtmlToken startTag();
  [[nodiscard]] HtmlToken endTag();
  [[nodiscard]] HtmlToken text();
  [[nodiscard]] HtmlToken rawText();
  [[nodiscard]] QString name();
  [[nodiscard]] Attribute attribute();
  [[nodiscard]] QString attributeValue();
  void skipComment();
  void skipPast(QChar c);
  void skipBlanks();
  [[nodiscard]] bool isAt(QLatin1String text) const;
  [[nodiscard]] QChar peek(qsizetype ahead = 0) const;

  QStringView html_;
  qsizetype at_ = 0;
  QString raw_;  // the element whose text holds no markup and comes next
};

}  // namespace desktop::pages
