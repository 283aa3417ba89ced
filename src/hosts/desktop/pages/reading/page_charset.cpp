#include "hosts/desktop/pages/reading/page_charset.h"

#include <QStringDecoder>
#include <array>
#include <optional>

#include "motor/language/charset.h"

namespace desktop::pages {
namespace {

constexpr qsizetype kDeclarationWithin = 4096;  // bytes

struct ByteOrderMark {
  QByteArrayView bytes;
  QStringConverter::Encoding encoding;
};

constexpr std::array kByteOrderMarks{
    ByteOrderMark{"\xEF\xBB\xBF", QStringConverter::Utf8},
    ByteOrderMark{"\xFF\xFE", QStringConverter::Utf16LE},
    ByteOrderMark{"\xFE\xFF", QStringConverter::Utf16BE},
};

// Pages that say ISO-8859-1 mean code page 1252, of which it is a part.
constexpr auto kWestern = motor::Charset::windowsLatin1;

struct CodePageName {
  const char* name;
  motor::Charset charset;
};

constexpr std::array kCodePages{
    CodePageName{"windows-1252", kWestern},
    CodePageName{"cp1252", kWestern},
    CodePageName{"x-cp1252", kWestern},
    CodePageName{"iso-8859-1", kWestern},
    CodePageName{"iso8859-1", kWestern},
    CodePageName{"iso_8859-1", kWestern},
    CodePageName{"latin1", kWestern},
    CodePageName{"l1", kWestern},
    CodePageName{"ascii", kWestern},
    CodePageName{"us-ascii", kWestern},
    CodePageName{"windows-1250", motor::Charset::windowsLatin2},
    CodePageName{"cp1250", motor::Charset::windowsLatin2},
    CodePageName{"x-cp1250", motor::Charset::windowsLatin2},
    CodePageName{"windows-1251", motor::Charset::windowsCyrillic},
    CodePageName{"cp1251", motor::Charset::windowsCyrillic},
    CodePageName{"ibm437", motor::Charset::codePage437},
    CodePageName{"cp437", motor::Charset::codePage437},
    CodePageName{"ibm850", motor::Charset::codePage850},
    CodePageName{"cp850", motor::Charset::codePage850},
    CodePageName{"ibm852", motor::Charset::codePage852},
    CodePageName{"cp852", motor::Charset::codePage852},
};

constexpr std::array kLatin9Names{"iso-8859-15", "iso8859-15", "iso_8859-15", "latin-9", "latin9", "l9"};

// Where ISO-8859-15 differs from ISO-8859-1.
struct Replaced {
  char16_t latin1;
  char16_t latin9;
};
constexpr std::array kLatin9{
    Replaced{0xA4, 0x20AC}, Replaced{0xA6, 0x0160}, Replaced{0xA8, 0x0161}, Replaced{0xB4, 0x017D},
    Replaced{0xB8, 0x017E}, Replaced{0xBC, 0x0152}, Replaced{0xBD, 0x0153}, Replaced{0xBE, 0x0178},
};

QString fromCodePage(const QByteArray& bytes, motor::Charset charset) {
  return QString::fromStdString(motor::toUtf8({bytes.constData(), static_cast<std::size_t>(bytes.size())}, charset));
}

QString fromLatin9(const QByteArray& bytes) {
  QString text = QString::fromLatin1(bytes);
  for (QChar& c : text) {
    for (const Replaced& each : kLatin9) {
      if (c.unicode() == each.latin1) c = QChar(each.latin9);
    }
  }
  return text;
}

std::optional<QString> fromUtf8(const QByteArray& bytes) {
  QStringDecoder decoder(QStringConverter::Utf8);
  QString text = decoder(bytes);
  if (decoder.hasError()) return std::nullopt;
  return text;
}

std::optional<QString> fromMarked(const QByteArray& bytes) {
  for (const ByteOrderMark& mark : kByteOrderMarks) {
    if (!bytes.startsWith(mark.bytes)) continue;
    QStringDecoder decoder(mark.encoding);
    return QString(decoder(QByteArrayView(bytes).sliced(mark.bytes.size())));
  }
  return std::nullopt;
}

std::optional<QString> fromDeclared(const QByteArray& bytes) {
  const QByteArray name = declaredCharset(bytes);
  for (const CodePageName& known : kCodePages) {
    if (name == known.name) return fromCodePage(bytes, known.charset);
  }
  for (const char* known : kLatin9Names) {
    if (name == known) return fromLatin9(bytes);
  }
  return std::nullopt;  // UTF-8 is tried next in any case
}

// What stands in a declaration after "charset" or "encoding": a name, in quotes or bare.
QByteArray valueAt(const QByteArray& text, qsizetype at) {
  const auto skip = [&](auto&& isSkipped) {
    while (at < text.size() && isSkipped(text[at])) ++at;
  };
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  skip(isBlank);
  if (at == text.size() || text[at] != '=') return {};
  ++at;
  skip([&](char c) { return isBlank(c) || c == '"' || c == '\''; });
  const qsizetype first = at;
  skip([](char c) { return ::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '_' || c == ':'; });
  return text.sliced(first, at - first);
}

// A lone half of a pair, a control character, or what the toolkit's documents use for frames, objects and lines.
bool isForbidden(const QString& text, qsizetype at) {
  const char16_t c = text[at].unicode();
  if (c >= 0xFDD0 && c <= 0xFDEF) return true;
  if (c == 0xFFFC || c >= 0xFFFE || c == 0x2028 || c == 0x2029 || c == 0xFEFF) return true;
  if (QChar::isHighSurrogate(c)) return at + 1 == text.size() || !text[at + 1].isLowSurrogate();
  return QChar::isLowSurrogate(c) && (at == 0 || !text[at - 1].isHighSurrogate());
}

bool isControl(char16_t c) {
  const bool isBlank = c == '\t' || c == '\n' || c == '\r';
  return (c < 0x20 && !isBlank) || (c >= 0x7F && c < 0xA0);
}

QString harmless(QString text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char16_t c = text[i].unicode();
    if (c >= 0x20 && c < 0x7F) continue;
    if (isControl(c)) {
      text[i] = u' ';
    } else if (c > 0x7F && isForbidden(text, i)) {
      text[i] = QChar::ReplacementCharacter;
    }
  }
  return text;
}

}  // namespace

QByteArray declaredCharset(const QByteArray& bytes) {
  const QByteArray head = bytes.first(qMin(bytes.size(), kDeclarationWithin)).toLower();
  if (head.startsWith("<?xml")) {
    const qsizetype end = head.indexOf("?>");
    const qsizetype encoding = head.indexOf("encoding");
    if (encoding >= 0 && encoding < end) return valueAt(head, encoding + 8);
  }
  for (qsizetype meta = head.indexOf("<meta"); meta >= 0; meta = head.indexOf("<meta", meta + 1)) {
    const qsizetype end = head.indexOf('>', meta);
    const qsizetype charset = head.indexOf("charset", meta);
    if (charset < 0) break;
    if (end < 0 || charset < end) return valueAt(head, charset + 7);
  }
  return {};
}

QString decodedPage(const QByteArray& bytes) {
  if (auto text = fromMarked(bytes)) return harmless(*std::move(text));
  if (auto text = fromDeclared(bytes)) return harmless(*std::move(text));
  if (auto text = fromUtf8(bytes)) return harmless(*std::move(text));
  return harmless(fromCodePage(bytes, kWestern));
}

}  // namespace desktop::pages
