#include "hosts/desktop/page_text.h"

#include <QStringDecoder>
#include <array>

namespace desktop {
namespace {

// Code page 1252 between 0x80 and 0x9F; the rest of it is Latin-1. 0 where it has no letter.
constexpr std::array<char16_t, 32> kHigh{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                         0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

}  // namespace

QString pageText(const QByteArray& bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(bytes);
  if (!decoder.hasError()) return text;
  QString western = QString::fromLatin1(bytes);
  for (QChar& c : western) {
    if (c.unicode() < 0x80 || c.unicode() > 0x9F) continue;
    const char16_t letter = kHigh[static_cast<std::size_t>(c.unicode() - 0x80)];
    if (letter != 0) c = QChar(letter);
  }
  return western;
}

}  // namespace desktop
