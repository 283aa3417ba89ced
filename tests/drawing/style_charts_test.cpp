#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "chart_sheet.h"
#include "motor/drawing/brushes.h"
#include "motor/drawing/map_image.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/small_maps.h"
#include "motor/drawing/symbol_pictures.h"
#include "motor/drawing/symbols.h"

// Charts of all that a style can be.
namespace motor {
namespace {

constexpr Colour kInk = 0x1F3A5F;
constexpr Colour kGround = 0xFFF6D8;

void paintBrush(QPainter& painter, const QRectF& cell, const Brush& brush, double devicePixelRatio) {
  painter.setPen(QPen(QColor(120, 128, 138), 1));
  painter.setBrush(toQBrush(brush, devicePixelRatio));
  painter.drawRect(cell.adjusted(0.5, 0.5, -0.5, -0.5));
}

QImage brushes(double devicePixelRatio) {
  ChartSheet sheet(68, 12, {44, 30}, ChartSheet::Captions::above, 12, devicePixelRatio);
  for (int pattern = 1; pattern <= 71; ++pattern) {
    if (pattern > 8 && pattern < 12) continue;
    sheet.add(QString::number(pattern), [&](QPainter& painter, const QRectF& cell) {
      paintBrush(painter, cell, {pattern, kInk, kGround}, devicePixelRatio);
    });
  }
  return sheet.picture();
}

TEST(StyleCharts, Brushes) { expectDrawing(brushes(1), "brushes"); }

TEST(StyleCharts, BrushesOnAFineScreen) { expectDrawing(brushes(2), "brushes-fine"); }

// Up, down and on: corners of all kinds.
QPolygonF zigzag(const QRectF& cell) {
  const double middle = cell.center().y();
  return {{cell.left(), middle},
          {cell.left() + 40, middle},
          {cell.left() + 55, cell.top() + 1},
          {cell.left() + 72, cell.bottom() - 1},
          {cell.right() - 2, middle}};
}

QImage pens(int width) {
  ChartSheet sheet(117, 5, {118, 10 + 10 * width}, ChartSheet::Captions::left, 28);
  for (int pattern = 2; pattern <= 118; ++pattern) {
    sheet.add(QString::number(pattern), [&](QPainter& painter, const QRectF& cell) {
      paintLine(painter, {width, pattern, kInk}, zigzag(cell.adjusted(0, 2 * width, 0, -2 * width)));
    });
  }
  return sheet.picture();
}

TEST(StyleCharts, Pens) { expectDrawing(pens(1), "pens"); }

TEST(StyleCharts, ThickPens) { expectDrawing(pens(2), "pens-thick"); }

TEST(StyleCharts, Symbols) {
  ChartSheet sheet(37, 10, {64, 34}, ChartSheet::Captions::above, 12);
  for (int shape = 31; shape <= 67; ++shape) {
    sheet.add(QString::number(shape), [&](QPainter& painter, const QRectF& cell) {
      Symbol symbol;
      symbol.shape = shape;
      symbol.colour = kInk;
      symbol.size = 8;
      paintSymbol(painter, symbol, {cell.left() + 12, cell.center().y()});
      symbol.size = 20;
      paintSymbol(painter, symbol, {cell.left() + 42, cell.center().y()});
    });
  }
  expectDrawing(sheet.picture(), "symbols");
}

// Three bands, as a picture with a white ground.
void writePicture(const QString& file) {
  QImage image(24, 24, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.fillRect(4, 4, 16, 6, Qt::black);
  painter.fillRect(4, 10, 16, 6, QColor(200, 40, 40));
  painter.fillRect(4, 16, 16, 4, QColor(40, 90, 200));
  painter.end();
  ASSERT_TRUE(image.save(file, "BMP"));
}

TEST(StyleCharts, SymbolsOfFontsAndPictures) {
  const QTemporaryDir folder;
  ASSERT_TRUE(QDir(folder.path()).mkdir("CustSymb"));
  writePicture(folder.filePath("CustSymb/banda.bmp"));
  useSymbolsOf(folder.path().toStdString());
  struct Case {
    const char* caption;
    Symbol symbol;
  };
  const auto character = [](int style, double angle) {
    return Symbol{0x2605, kInk, 20, "DejaVu Sans", "", style, angle};  // a star
  };
  const auto picture = [](int flags) { return Symbol{0, 0x2E8B57, 24, "", "banda.bmp", flags, 0}; };
  const Case cases[] = {{"letra", character(0, 0)},   {"borde", character(16, 0)},
                        {"sombra", character(32, 0)}, {"halo", character(256, 0)},
                        {"girada", character(0, 30)}, {"imagen", picture(0)},
                        {"con fondo", picture(1)},    {"de color", picture(2)},
                        {"a su tamaño", picture(4)},  {"sin imagen", Symbol{0, kInk, 20, "", "nada.bmp", 0, 0}}};
  ChartSheet sheet(std::size(cases), 5, {80, 40}, ChartSheet::Captions::above, 12);
  for (const Case& c : cases) {
    sheet.add(QString::fromUtf8(c.caption), [&](QPainter& painter, const QRectF& cell) {
      painter.fillRect(cell, QColor(203, 216, 196));
      paintSymbol(painter, c.symbol, cell.center());
    });
  }
  useSymbolsOf({});
  expectDrawing(sheet.picture(), "symbols-of-fonts-and-pictures");
}

// Roads that cross and join, one pen beside the other.
TEST(StyleCharts, Crossings) {
  ChartSheet sheet(6, 3, {110, 80}, ChartSheet::Captions::above, 12);
  for (const int pattern : {65, 73, 112, 65 + 128, 73 + 128, 112 + 128}) {
    sheet.add(QString::number(pattern), [&](QPainter& painter, const QRectF& cell) {
      const Pen pen{2, pattern, 0x8A5A00};
      const Layer roads = small::layer({small::line({{0, 30}, {40, 50}, {110, 40}}, pen),
                                        small::line({{30, 0}, {50, 80}}, pen), small::line({{80, 80}, {85, 44}}, pen)});
      Map map = small::map({roads});
      map.centre = {55, 40};
      map.zoomMetres = 110;
      painter.drawImage(cell.topLeft(), renderMap(map, cell.size().toSize(), 1));
    });
  }
  expectDrawing(sheet.picture(), "crossings");
}

}  // namespace
}  // namespace motor
