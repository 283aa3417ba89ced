#include "motor/window/export/map_mime_data.h"

#include <QVariant>

#include "motor/window/export/map_export.h"

namespace motor {

namespace {

struct Form {
  const char* format;
  QByteArray (*make)(const Map& map, QSize size);
};

// The best first, as those who take a picture look for them.
constexpr Form kForms[] = {{"application/pdf", mapAsPdf}, {"image/svg+xml", mapAsSvg}, {"image/png", mapAsPng}};
const auto kImage = QLatin1String("application/x-qt-image");  // the toolkit's word for any picture of pixels

}  // namespace

MapMimeData::MapMimeData(Map map, QSize size) : map_(std::move(map)), size_(size) {}

QStringList MapMimeData::formats() const {
  QStringList formats;
  for (const Form& form : kForms) formats << QLatin1String(form.format);
  return formats << kImage;
}

bool MapMimeData::hasFormat(const QString& format) const { return formats().contains(format); }

QVariant MapMimeData::retrieveData(const QString& format, QMetaType) const {
  if (format == kImage) return mapAsImage(map_, size_);
  for (const Form& form : kForms) {
    if (format == QLatin1String(form.format)) return form.make(map_, size_);
  }
  return {};
}

}  // namespace motor
