#include "hosts/desktop/pages/reading/character_references.h"

#include <algorithm>
#include <array>

#include "motor/language/charset.h"

namespace desktop::pages {
namespace {

// Those of U+00A0 to U+00FF, in order.
constexpr std::array kLatin1{
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",   "ordf",
    "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",
    "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave",
    "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",
    "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",
    "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute",
    "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave",
    "iacute", "icirc",  "iuml",   "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml",
};
constexpr char16_t kFirstLatin1 = 0xA0;

struct Name {
  const char* name;
  char16_t character;
};

constexpr std::array kMarkup{Name{"amp", u'&'}, Name{"lt", u'<'}, Name{"gt", u'>'}, Name{"quot", u'"'}};

constexpr std::array kOthers{
    Name{"apos", 0x27},     Name{"OElig", 0x152},   Name{"oelig", 0x153},   Name{"Scaron", 0x160},
    Name{"scaron", 0x161},  Name{"Yuml", 0x178},    Name{"fnof", 0x192},    Name{"circ", 0x2C6},
    Name{"tilde", 0x2DC},   Name{"Alpha", 0x391},   Name{"Beta", 0x392},    Name{"Gamma", 0x393},
    Name{"Delta", 0x394},   Name{"Epsilon", 0x395}, Name{"Zeta", 0x396},    Name{"Eta", 0x397},
    Name{"Theta", 0x398},   Name{"Iota", 0x399},    Name{"Kappa", 0x39A},   Name{"Lambda", 0x39B},
    Name{"Mu", 0x39C},      Name{"Nu", 0x39D},      Name{"Xi", 0x39E},      Name{"Omicron", 0x39F},
    Name{"Pi", 0x3A0},      Name{"Rho", 0x3A1},     Name{"Sigma", 0x3A3},   Name{"Tau", 0x3A4},
    Name{"Upsilon", 0x3A5}, Name{"Phi", 0x3A6},     Name{"Chi", 0x3A7},     Name{"Psi", 0x3A8},
    Name{"Omega", 0x3A9},   Name{"alpha", 0x3B1},   Name{"beta", 0x3B2},    Name{"gamma", 0x3B3},
    Name{"delta", 0x3B4},   Name{"epsilon", 0x3B5}, Name{"zeta", 0x3B6},    Name{"eta", 0x3B7},
    Name{"theta", 0x3B8},   Name{"iota", 0x3B9},    Name{"kappa", 0x3BA},   Name{"lambda", 0x3BB},
    Name{"mu", 0x3BC},      Name{"nu", 0x3BD},      Name{"xi", 0x3BE},      Name{"omicron", 0x3BF},
    Name{"pi", 0x3C0},      Name{"rho", 0x3C1},     Name{"sigmaf", 0x3C2},  Name{"sigma", 0x3C3},
    Name{"tau", 0x3C4},     Name{"upsilon", 0x3C5}, Name{"phi", 0x3C6},     Name{"chi", 0x3C7},
    Name{"psi", 0x3C8},     Name{"omega", 0x3C9},   Name{"ensp", 0x2002},   Name{"emsp", 0x2003},
    Name{"thinsp", 0x2009}, Name{"zwnj", 0x200C},   Name{"zwj", 0x200D},    Name{"lrm", 0x200E},
    Name{"rlm", 0x200F},    Name{"ndash", 0x2013},  Name{"mdash", 0x2014},  Name{"lsquo", 0x2018},
    Name{"rsquo", 0x2019},  Name{"sbquo", 0x201A},  Name{"ldquo", 0x201C},  Name{"rdquo", 0x201D},
    Name{"bdquo", 0x201E},  Name{"dagger", 0x2020}, Name{"Dagger", 0x2021}, Name{"bull", 0x2022},
    Name{"hellip", 0x2026}, Name{"permil", 0x2030}, Name{"prime", 0x2032},  Name{"Prime", 0x2033},
    Name{"lsaquo", 0x2039}, Name{"rsaquo", 0x203A}, Name{"oline", 0x203E},  Name{"frasl", 0x2044},
    Name{"euro", 0x20AC},   Name{"image", 0x2111},  Name{"trade", 0x2122},  Name{"larr", 0x2190},
    Name{"uarr", 0x2191},   Name{"rarr", 0x2192},   Name{"darr", 0x2193},   Name{"harr", 0x2194},
    Name{"forall", 0x2200}, Name{"part", 0x2202},   Name{"exist", 0x2203},  Name{"empty", 0x2205},
    Name{"nabla", 0x2207},  Name{"isin", 0x2208},   Name{"prod", 0x220F},   Name{"sum", 0x2211},
    Name{"minus", 0x2212},  Name{"lowast", 0x2217}, Name{"radic", 0x221A},  Name{"prop", 0x221D},
    Name{"infin", 0x221E},  Name{"and", 0x2227},    Name{"or", 0x2228},     Name{"cap", 0x2229},
    Name{"cup", 0x222A},    Name{"int", 0x222B},    Name{"sim", 0x223C},    Name{"cong", 0x2245},
    Name{"asymp", 0x2248},  Name{"ne", 0x2260},     Name{"equiv", 0x2261},  Name{"le", 0x2264},
    Name{"ge", 0x2265},     Name{"sub", 0x2282},    Name{"sup", 0x2283},    Name{"loz", 0x25CA},
    Name{"spades", 0x2660}, Name{"clubs", 0x2663},  Name{"hearts", 0x2665}, Name{"diams", 0x2666},
};

constexpr qsizetype kLongestName = 8;
constexpr qsizetype kMostDigits = 8;

// A reference that begins at a "&": its character and its length; length 0 where there is none.
struct Reference {
  QString character;
  qsizetype length = 0;
};

bool isDigit(QChar c, int base) {
  const char16_t u = c.unicode();
  if (u >= u'0' && u <= u'9') return true;
  return base == 16 && ((u >= u'a' && u <= u'f') || (u >= u'A' && u <= u'F'));
}

QString characterOf(uint number) {
  if (number >= 0x80 && number <= 0x9F) {
    const std::string byte(1, static_cast<char>(number));
    return QString::fromStdString(motor::toUtf8(byte, motor::Charset::windowsLatin1));
  }
  if (number == '\t' || number == '\n' || number == '\r') return QString(QChar(number));
  if (number < 0x20 || number == 0x7F) return {};
  const bool isCharacter = number <= 0x10FFFF && (number & 0xFFFE) != 0xFFFE && number != 0xFFFC && number != 0x2028 &&
                           number != 0x2029 && number != 0xFEFF && !(number >= 0xD800 && number <= 0xDFFF) &&
                           !(number >= 0xFDD0 && number <= 0xFDEF);
  const char32_t character = isCharacter ? number : char32_t{QChar::ReplacementCharacter};
  return QString::fromUcs4(&character, 1);
}

Reference numberAt(QStringView text) {
  const bool isHex = text.size() > 2 && (text[2] == u'x' || text[2] == u'X');
  const qsizetype first = isHex ? 3 : 2;
  const int base = isHex ? 16 : 10;
  qsizetype end = first;
  while (end < text.size() && isDigit(text[end], base)) ++end;
  if (end == first) return {};
  const qsizetype length = end < text.size() && text[end] == u';' ? end + 1 : end;
  bool isNumber = false;
  const uint number = text.sliced(first, qMin(end - first, kMostDigits)).toUInt(&isNumber, base);
  const bool isTooLong = end - first > kMostDigits;
  return {characterOf(isNumber && !isTooLong ? number : 0xFFFF), length};
}

// The character that a name stands for; `isOld` where it needs no semicolon.
struct Named {
  char16_t character = 0;
  bool isOld = false;
};

Named characterNamed(QStringView name) {
  for (const Name& each : kMarkup) {
    if (name == QLatin1String(each.name)) return {each.character, true};
  }
  const auto latin1 = std::ranges::find_if(kLatin1, [&](const char* each) { return name == QLatin1String(each); });
  if (latin1 != kLatin1.end()) return {static_cast<char16_t>(kFirstLatin1 + (latin1 - kLatin1.begin())), true};
  const auto other = std::ranges::find_if(kOthers, [&](const Name& each) { return name == QLatin1String(each.name); });
  return other == kOthers.end() ? Named() : Named{other->character, false};
}

Reference nameAt(QStringView text) {
  qsizetype end = 1;
  while (end < text.size() && end <= kLongestName && text[end].unicode() < 0x80 && text[end].isLetterOrNumber()) ++end;
  if (end < text.size() && text[end] == u';') {
    const Named named = characterNamed(text.sliced(1, end - 1));
    if (named.character != 0) return {QChar(named.character), end + 1};
  }
  for (qsizetype length = end - 1; length >= 2; --length) {
    const Named named = characterNamed(text.sliced(1, length));
    if (named.isOld) return {QChar(named.character), length + 1};
  }
  return {};
}

Reference referenceAt(QStringView text) {
  if (text.size() < 3) return {};
  return text[1] == u'#' ? numberAt(text) : nameAt(text);
}

}  // namespace

QString withoutReferences(QStringView text) {
  qsizetype ampersand = text.indexOf(u'&');
  if (ampersand < 0) return text.toString();
  QString result;
  result.reserve(text.size());
  qsizetype done = 0;
  for (; ampersand >= 0; ampersand = text.indexOf(u'&', qMax(ampersand + 1, done))) {
    const Reference reference = referenceAt(text.sliced(ampersand));
    if (reference.length == 0) continue;
    result += text.sliced(done, ampersand - done);
    result += reference.character;
    done = ampersand + reference.length;
  }
  result += text.sliced(done);
  return result;
}

}  // namespace desktop::pages
