#include "hosts/desktop/pages/text_search.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <array>

namespace desktop::pages {
namespace {

// A letter and what it may look like with an accent.
struct Accented {
  char16_t letter;
  const char16_t* all;
};
constexpr std::array kAccented{
    Accented{u'a', u"aáàâäãåªÁÀÂÄÃÅ"},
    Accented{u'e', u"eéèêëÉÈÊË"},
    Accented{u'i', u"iíìîïÍÌÎÏ"},
    Accented{u'o', u"oóòôöõºÓÒÔÖÕ"},
    Accented{u'u', u"uúùûüÚÙÛÜ"},
    Accented{u'n', u"nñÑ"},
    Accented{u'c', u"cçÇ"},
};

// A letter that may break off a line where a word is too long.
constexpr auto kMayBreak = u"\\x{200B}?";

QString patternOf(QChar c) {
  if (c.isSpace()) return QStringLiteral("[\\s\\x{A0}]");
  for (const Accented& each : kAccented) {
    if (c.toLower() == QChar(each.letter)) return u'[' + QString::fromUtf16(each.all) + u']';
  }
  return QRegularExpression::escape(QString(c));
}

}  // namespace

QString searchPattern(const QString& words) {
  QString pattern;
  for (const QChar c : words) {
    if (!pattern.isEmpty() && !c.isLowSurrogate()) pattern += QString::fromUtf16(kMayBreak);
    pattern += c.isSurrogate() ? QString(c) : patternOf(c);
  }
  return pattern;
}

std::vector<Match> matchesOf(const QTextDocument& document, const QString& words, std::size_t most) {
  std::vector<Match> matches;
  if (words.trimmed().isEmpty()) return matches;
  const QRegularExpression pattern(
      searchPattern(words), QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    auto found = pattern.globalMatch(block.text());
    while (found.hasNext()) {
      const QRegularExpressionMatch match = found.next();
      matches.push_back(
          {block.position() + static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength())});
      if (matches.size() == most) return matches;
    }
  }
  return matches;
}

}  // namespace desktop::pages
