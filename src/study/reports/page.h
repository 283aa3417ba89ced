#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "study/reports/type.h"

// A page as a list of what is painted on it, so that a report can be looked into before it is a file. Lengths are in
// points (1/72 inch) from the page's upper left corner.
namespace study::reports {

inline constexpr double kPageWidth = 595;  // A4
inline constexpr double kPageHeight = 842;
// What the pages' content keeps to; the running head and the page number stand above and below it.
inline constexpr double kLeft = 56;
inline constexpr double kRight = kPageWidth - 56;
inline constexpr double kTop = 70;
inline constexpr double kBottom = kPageHeight - 56;
inline constexpr double kContentWidth = kRight - kLeft;

struct Stroke {
  int colour = kText;
  double width = 0.6;
  bool isDashed = false;
};

struct TextMark {
  QPointF at;  // the left end of the baseline
  std::string text;
  TextStyle style;
};

// Closed rings, filled by the odd-even rule, or open lines.
struct ShapeMark {
  std::vector<QPolygonF> lines;
  bool isClosed = true;
  std::optional<int> fill;
  std::optional<Stroke> stroke;
};

struct DiscMark {
  QPointF centre;
  double radius = 0;
  int fill = kText;
  std::optional<Stroke> stroke;
};

using Mark = std::variant<TextMark, ShapeMark, DiscMark>;

// What a mark covers, half of its line's width included.
[[nodiscard]] QRectF markExtent(const Mark& mark);

enum class Align { left, centre, right };

class Page {
 public:
  // `at` is on the baseline: the text's left end, middle or right end. No text: no mark.
  void text(QPointF at, std::string_view text, const TextStyle& style, Align align = Align::left);
  void box(const QRectF& box, int fill);
  void line(QPointF from, QPointF to, const Stroke& stroke);
  void path(QPolygonF points, const Stroke& stroke);
  void area(std::vector<QPolygonF> rings, std::optional<int> fill, std::optional<Stroke> stroke = std::nullopt);
  void disc(QPointF centre, double radius, int fill, std::optional<Stroke> stroke = std::nullopt);

  [[nodiscard]] const std::vector<Mark>& marks() const { return marks_; }

 private:
  std::vector<Mark> marks_;
};

}  // namespace study::reports
