#pragma once

#include <QMimeData>
#include <QSize>

#include "motor/map/map.h"

namespace motor {

// A map for the clipboard or a drag: as PDF and SVG for programs that take shapes, as an image for the others. Each
// form is made when somebody asks for it, of the map as it was; no file is written.
class MapMimeData : public QMimeData {
 public:
  // `size` is the picture's, in logical pixels.
  MapMimeData(Map map, QSize size);

  [[nodiscard]] QStringList formats() const override;
  [[nodiscard]] bool hasFormat(const QString& format) const override;

 protected:
  [[nodiscard]] QVariant retrieveData(const QString& format, QMetaType type) const override;

 private:
  Map map_;
  QSize size_;
};

}  // namespace motor
