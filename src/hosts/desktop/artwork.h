#pragma once

#include <QIcon>
#include <QRectF>
#include <QString>
#include <string>

class QPainter;

// The program's drawings, compiled in as SVG. A picture is known by its file's name without the ending.
namespace desktop::artwork {

[[nodiscard]] bool has(const std::string& picture);

// Paints the picture into the middle of `rect`, as large as its proportions allow. Nothing when there is none.
void paint(QPainter& painter, const std::string& picture, const QRectF& rect);

[[nodiscard]] QIcon icon(const std::string& picture);

}  // namespace desktop::artwork
