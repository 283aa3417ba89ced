#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>
#include <functional>
#include <string>

// Compares a picture with the golden one of that name beside these tests.
void expectDrawing(const QImage& picture, const std::string& name);

// A white sheet of cells of one size in rows, each with a caption.
class ChartSheet {
 public:
  // `cell` in logical pixels without the captions, which stand to the left of the cells or above them.
  enum class Captions { left, above };
  ChartSheet(int cells, int columns, QSize cell, Captions captions, int captionRoom, double devicePixelRatio = 1);

  // Adds the next cell; `paint` is given the cell's place, and paints smoothly.
  void add(const QString& caption, const std::function<void(QPainter&, const QRectF&)>& paint);
  [[nodiscard]] const QImage& picture() const { return picture_; }

 private:
  [[nodiscard]] QRectF place(int number) const;

  int columns_;
  QSize cell_;
  Captions captions_;
  int captionRoom_;
  int added_ = 0;
  QImage picture_;
};
