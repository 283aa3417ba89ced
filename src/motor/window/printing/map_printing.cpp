#include "motor/window/printing/map_printing.h"

#include <algorithm>

namespace motor {

void printPage(QPrinter& printer, const MapPage& page) {
  constexpr double kLogicalDpi = 96;
  constexpr double kFinest = 4;  // of what the eye can tell on paper
  const double scale = printer.resolution() / kLogicalDpi;
  QPainter painter(&printer);
  painter.scale(scale, scale);
  page.paint(painter, QSizeF(printer.pageRect(QPrinter::DevicePixel).size()) / scale, std::min(scale, kFinest));
}

}  // namespace motor
