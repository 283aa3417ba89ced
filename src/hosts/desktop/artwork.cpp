#include "hosts/desktop/artwork.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace desktop::artwork {
namespace {

QString fileOf(const std::string& picture) {
  return QStringLiteral(":/artwork/%1.svg").arg(QString::fromStdString(picture));
}

}  // namespace

bool has(const std::string& picture) { return !picture.empty() && QFile::exists(fileOf(picture)); }

void paint(QPainter& painter, const std::string& picture, const QRectF& rect) {
  if (!has(picture)) return;
  QSvgRenderer renderer(fileOf(picture));
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter, rect);
  painter.restore();
}

QIcon icon(const std::string& picture) { return has(picture) ? QIcon(fileOf(picture)) : QIcon(); }

}  // namespace desktop::artwork
