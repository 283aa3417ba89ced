#include "hosts/desktop/views/indicator_tree.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QPainter>
#include <QPolygonF>
#include <QStyledItemDelegate>

#include "hosts/desktop/theme.h"

namespace desktop {
namespace {

constexpr int kIndentation = 14;
constexpr int kMargin = 4;      // beside the texts
constexpr int kPadding = 3;     // above and below them
constexpr int kGap = 10;        // between a text and its figure
constexpr double kArrow = 3.5;  // half of a branch mark

int depthOf(const QModelIndex& index) {
  int depth = 0;
  for (QModelIndex at = index.parent(); at.isValid(); at = at.parent()) ++depth;
  return depth;
}

// Paints a node in as many lines as its text needs.
class IndicatorDelegate : public QStyledItemDelegate {
 public:
  explicit IndicatorDelegate(QTreeWidget& tree) : QStyledItemDelegate(&tree), tree_(tree) {}

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const Layout layout = layoutOf(option, index);
    const int width = tree_.viewport()->width() - kIndentation * (depthOf(index) + 1);
    const QFontMetrics metrics(layout.font);
    const int height =
        metrics.boundingRect(0, 0, textWidth(layout, width), kUnlimited, kBroken, layout.parts.text).height();
    return {width, qMax(height, metrics.height()) + 2 * kPadding};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const Layout layout = layoutOf(option, index);
    const bool chosen = (option.state & QStyle::State_Selected) != 0;
    const bool hovered = (option.state & QStyle::State_MouseOver) != 0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (chosen || hovered) {
      painter->setPen(Qt::NoPen);
      painter->setBrush(chosen ? theme::kNavy : theme::kNavyTint);
      painter->drawRoundedRect(QRectF(option.rect).adjusted(0, 0.5, -2, -0.5), 4, 4);
    }
    const QVariant foreground = index.data(Qt::ForegroundRole);
    const QColor ink = foreground.isValid() ? foreground.value<QBrush>().color() : theme::kInk;
    const QRect inside = option.rect.adjusted(kMargin, kPadding, -kMargin - 2, -kPadding);
    painter->setFont(layout.font);
    painter->setPen(chosen ? QColor(Qt::white) : ink);
    const QRect textRect(inside.topLeft(), QSize(textWidth(layout, option.rect.width()), inside.height()));
    painter->drawText(textRect, kBroken, layout.parts.text);
    if (!layout.parts.figure.isEmpty()) {
      painter->setFont(layout.figureFont);
      painter->drawText(inside, Qt::AlignRight | Qt::AlignTop, layout.parts.figure);
    }
    painter->restore();
  }

 private:
  static constexpr int kBroken =
      static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignTop) | static_cast<int>(Qt::TextWordWrap);
  static constexpr int kUnlimited = 10000;

  struct Layout {
    QFont font;
    QFont figureFont;
    IndicatorText parts;
  };

  [[nodiscard]] static Layout layoutOf(const QStyleOptionViewItem& option, const QModelIndex& index) {
    Layout layout{option.font, option.font, splitIndicator(index.data().toString())};
    const QVariant own = index.data(Qt::FontRole);
    if (own.isValid()) layout.font = own.value<QFont>();
    layout.figureFont.setBold(true);
    return layout;
  }

  [[nodiscard]] static int textWidth(const Layout& layout, int width) {
    const int free = width - 2 * kMargin - 2;
    if (layout.parts.figure.isEmpty()) return qMax(1, free);
    return qMax(1, free - kGap - QFontMetrics(layout.figureFont).horizontalAdvance(layout.parts.figure));
  }

  QTreeWidget& tree_;
};

bool isFigure(const QString& text) {
  const auto isSign = [](QChar c) { return c == QLatin1Char('-') || c == QLatin1Char('.') || c == QLatin1Char(','); };
  bool digits = false;
  for (const QChar c : text) {
    if (!c.isDigit() && !isSign(c)) return false;
    digits = digits || c.isDigit();
  }
  return digits;
}

}  // namespace

IndicatorText splitIndicator(const QString& nodeText) {
  const QString separator = QStringLiteral(": ");
  const auto at = nodeText.lastIndexOf(separator);
  if (at < 0) return {nodeText, {}};
  const QString tail = nodeText.mid(at + separator.size());
  if (!isFigure(tail)) return {nodeText, {}};
  return {nodeText.left(at), tail};
}

IndicatorTree::IndicatorTree(QWidget& parent) : QTreeWidget(&parent) {
  setHeaderHidden(true);
  setColumnCount(1);
  setIndentation(kIndentation);
  setUniformRowHeights(false);
  setMouseTracking(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setItemDelegate(new IndicatorDelegate(*this));
}

// Another width breaks the texts elsewhere.
void IndicatorTree::resizeEvent(QResizeEvent* event) {
  QTreeWidget::resizeEvent(event);
  scheduleDelayedItemsLayout();
}

void IndicatorTree::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const {
  if (!model()->hasChildren(index)) return;
  const QRect mark(rect.right() - kIndentation + 1, rect.top() + kPadding, kIndentation, fontMetrics().height());
  const QPointF middle = QRectF(mark).center();
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->translate(middle);
  if (isExpanded(index)) painter->rotate(90);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QPen(theme::kMuted, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPolyline(QPolygonF({{-kArrow / 2, -kArrow}, {kArrow / 2, 0}, {-kArrow / 2, kArrow}}));
  painter->restore();
}

}  // namespace desktop
