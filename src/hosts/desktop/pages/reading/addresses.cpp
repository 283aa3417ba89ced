#include "hosts/desktop/pages/reading/addresses.h"

#include <algorithm>
#include <array>

namespace desktop::pages {
namespace {

constexpr qsizetype kLongest = 1000;  // characters

constexpr std::array kRunning{"javascript", "vbscript", "data", "about", "mhtml", "res", "qrc", "blob", "view-source"};

// The scheme in lower case, or nothing. One letter is a drive.
QString schemeOf(const QString& address) {
  const qsizetype colon = address.indexOf(u':');
  if (colon < 2) return {};
  const QString scheme = address.first(colon).toLower();
  const bool isScheme = std::ranges::all_of(scheme, [](QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'+' || c == u'-' || c == u'.';
  });
  return isScheme ? scheme : QString();
}

QString cleaned(const QString& written) {
  QString address;
  for (const QChar c : written.trimmed()) {
    if (c.unicode() < 0x20) continue;
    address += c;
  }
  return address.size() > kLongest ? QString() : address;
}

// A path as Windows writes it.
QString withSlashes(QString address) { return address.replace(u'\\', u'/'); }

}  // namespace

QString linkAddress(const QString& written) {
  const QString address = cleaned(written);
  const QString scheme = schemeOf(address);
  if (scheme.isEmpty()) return withSlashes(address);
  const bool isRunning = std::ranges::any_of(kRunning, [&](const char* each) { return scheme == QLatin1String(each); });
  return isRunning ? QString() : address;
}

QString pictureAddress(const QString& written) {
  const QString address = linkAddress(written);
  const QString scheme = schemeOf(address);
  return scheme.isEmpty() || scheme == QLatin1String("file") ? address : QString();
}

}  // namespace desktop::pages
