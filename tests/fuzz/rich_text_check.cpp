#include "rich_text_check.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

const QStringList kElements{"html",  "head", "title", "style", "body", "p",  "ul",  "li", "table",
                            "thead", "tr",   "td",    "span",  "a",    "br", "img", "i"};
const QStringList kEmptyElements{"br", "img"};
const QStringList kAttributes{"style",   "class",       "align",       "width", "height", "rowspan",
                              "colspan", "cellspacing", "cellpadding", "href",  "src",    "name"};

// Controls, halves of pairs, and what the toolkit's documents use for frames, objects and lines.
bool isForbidden(QChar c) {
  const char16_t u = c.unicode();
  const bool isControl = (u < 0x20 && u != '\t' && u != '\n' && u != '\r') || (u >= 0x7F && u < 0xA0);
  return isControl || (u >= 0xFDD0 && u <= 0xFDEF) || u >= 0xFFFE || u == 0xFFFC || u == 0xFEFF || u == 0x2028 ||
         u == 0x2029;
}

// An address that makes the toolkit run or show what the page itself holds.
bool isRunning(const QString& address) {
  static const QRegularExpression running("^\\s*(javascript|vbscript|data|about|qrc|blob):",
                                          QRegularExpression::CaseInsensitiveOption);
  return running.match(address).hasMatch();
}

QString faultInAttributes(const QString& written) {
  static const QRegularExpression one(" ([a-z]+)=\"([^\"<>]*)\"");
  qsizetype end = 0;
  while (end < written.size()) {
    const QRegularExpressionMatch match =
        one.match(written, end, QRegularExpression::NormalMatch, QRegularExpression::AnchorAtOffsetMatchOption);
    if (!match.hasMatch()) return "attributes " + written;
    const QString name = match.captured(1);
    const QString value = match.captured(2);
    if (!kAttributes.contains(name)) return "attribute " + name;
    if ((name == "href" || name == "src") && isRunning(value)) return "address " + value;
    if (name == "style" && value.contains("url(")) return "style " + value;
    end = match.capturedEnd();
  }
  return {};
}

// Follows the elements of a text.
class Elements {
 public:
  // What stands between "<" and ">".
  QString take(const QString& markup) {
    static const QRegularExpression form("^(/?)([a-z]+)((?: [a-z]+=\"[^\"<>]*\")*)( ?/?)$");
    const QRegularExpressionMatch match = form.match(markup);
    if (!match.hasMatch()) return "markup " + markup;
    const QString name = match.captured(2);
    if (!kElements.contains(name)) return "element " + name;
    if (kEmptyElements.contains(name)) return faultInAttributes(match.captured(3));
    if (match.captured(1).isEmpty()) {
      open_.append(name);
      return faultInAttributes(match.captured(3));
    }
    if (open_.isEmpty() || open_.takeLast() != name) return "end of " + name;
    return {};
  }
  [[nodiscard]] bool areClosed() const { return open_.isEmpty(); }

 private:
  QStringList open_;
};

}  // namespace

QString faultIn(const QString& richText) {
  if (!richText.isValidUtf16()) return "half a pair";
  for (const QChar c : richText) {
    if (isForbidden(c)) return "character " + QString::number(c.unicode(), 16);
  }
  Elements elements;
  for (qsizetype begin = richText.indexOf(u'<'); begin >= 0; begin = richText.indexOf(u'<', begin + 1)) {
    const qsizetype end = richText.indexOf(u'>', begin);
    if (end < 0) return "a tag without end";
    const QString fault = elements.take(richText.sliced(begin + 1, end - begin - 1));
    if (!fault.isEmpty()) return fault;
  }
  return elements.areClosed() ? QString() : QString("an open element");
}
