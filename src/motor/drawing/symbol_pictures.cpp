#include "motor/drawing/symbol_pictures.h"

#include <QCache>
#include <QImageReader>
#include <array>

#include "motor/drawing/colours.h"
#include "platform/paths.h"
#include "text/file_text.h"

namespace motor {

namespace {

constexpr int kShowsBackground = 1;
constexpr int kAppliesColour = 2;
constexpr int kMostPixels = 512;
constexpr int kKeptPictures = 64;
constexpr QRgb kBackground = qRgb(255, 255, 255);

namespace fs = std::filesystem;

// The pictures are read once: a layer of points asks for the same few thousands of times. The toolkit paints on one
// thread.
struct Pictures {
  fs::path folder;  // canonical; empty: there is none
  QCache<QString, QImage> kept{kKeptPictures};
};

Pictures& pictures() {
  static Pictures all;
  return all;
}

// The real path of the one that a folder holds by a name in any case, and not by a link to somewhere else; else empty.
fs::path inFolder(const fs::path& folder, const std::string& name) {
  std::error_code failed;
  const fs::path found = fs::canonical(platform::machinePath(text::fromPath(folder) + '/' + name), failed);
  return failed || found.parent_path() != folder ? fs::path() : found;
}

bool isPictureFormat(const QByteArray& format) {
  constexpr std::array kFormats{"bmp", "png", "gif", "jpeg"};
  return std::find(kFormats.begin(), kFormats.end(), format) != kFormats.end();
}

QImage pictureNamed(const std::string& name) {
  const fs::path& folder = pictures().folder;
  if (folder.empty() || name.find_first_of("/\\") != std::string::npos) return {};
  const fs::path file = inFolder(folder, name);
  std::error_code ignored;
  if (!fs::is_regular_file(file, ignored)) return {};
  QImageReader reader(QString::fromStdString(text::fromPath(file)));
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  if (!size.isValid() || size.width() > kMostPixels || size.height() > kMostPixels) return {};
  if (!isPictureFormat(reader.format())) return {};
  return reader.read().convertToFormat(QImage::Format_ARGB32);
}

// From white to black the colour comes out.
QRgb coloured(QRgb pixel, const QColor& colour) {
  const int grey = qGray(pixel);
  const auto mixed = [grey](int channel) { return channel + (255 - channel) * grey / 255; };
  return qRgba(mixed(colour.red()), mixed(colour.green()), mixed(colour.blue()), qAlpha(pixel));
}

QImage inStyle(QImage picture, const Symbol& symbol) {
  const QColor colour = toQColor(symbol.colour);
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      if (line[x] == kBackground && !(symbol.style & kShowsBackground)) {
        line[x] = qRgba(255, 255, 255, 0);
      } else if (symbol.style & kAppliesColour && line[x] != kBackground) {
        line[x] = coloured(line[x], colour);
      }
    }
  }
  return picture;
}

}  // namespace

void useSymbolsOf(const fs::path& applicationFolder) {
  std::error_code failed;
  const fs::path application = fs::canonical(applicationFolder, failed);
  pictures().folder = failed ? fs::path() : inFolder(application, "CustSymb");
  pictures().kept.clear();
}

QImage symbolPicture(const Symbol& symbol) {
  QCache<QString, QImage>& kept = pictures().kept;
  const QString name = QString::fromStdString(symbol.file);
  const QString key = QStringLiteral("%1|%2|%3").arg(name).arg(symbol.colour).arg(symbol.style);
  if (const QImage* known = kept.object(key)) return *known;
  const QImage picture = pictureNamed(symbol.file);
  if (picture.isNull()) return {};
  auto* styled = new QImage(inStyle(picture, symbol));
  const QImage result = *styled;
  kept.insert(key, styled);  // which deletes it
  return result;
}

}  // namespace motor
