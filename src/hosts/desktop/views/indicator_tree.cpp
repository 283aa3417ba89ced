#include "hosts/desktop/views/indicator_tree.h"

#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QPolygonF>
#include <QStyledItemDelegate>

#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/keyboard_focus.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/views/context_menu.h"
#include "hosts/screen/indicator_text.h"

namespace desktop {
namespace {

constexpr int kIndentation = 14;
constexpr int kMargin = 4;      // beside the texts
constexpr int kPadding = 3;     // above and below them
constexpr int kGap = 10;        // between a text and its figure
constexpr double kArrow = 3.5;  // half of a branch mark
constexpr int kHintInset = 24;

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
    const int width = tree_.viewport()->width() - scaled(kIndentation) * (depthOf(index) + 1);
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
    if (!layout.parts.figure.isEmpty()) layout.parts.text += QLatin1Char(':');
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

}  // namespace

IndicatorText splitIndicator(const QString& nodeText) {
  const screen::IndicatorText parts = screen::splitIndicator(nodeText.toStdString());
  return {QString::fromStdString(parts.text), QString::fromStdString(parts.figure)};
}

IndicatorTree::IndicatorTree(QWidget& parent) : QTreeWidget(&parent) {
  setHeaderHidden(true);
  setColumnCount(1);
  setIndentation(scaled(kIndentation));
  setUniformRowHeights(false);
  setMouseTracking(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setItemDelegate(new IndicatorDelegate(*this));
}

// A tree without nodes says how to fill it.
void IndicatorTree::paintEvent(QPaintEvent* event) {
  QTreeWidget::paintEvent(event);
  if (topLevelItemCount() > 0) return;
  QPainter painter(viewport());
  painter.setFont(font());
  painter.setPen(theme::kMuted);
  const QRect inside = viewport()->rect().adjusted(kHintInset, kHintInset, -kHintInset, -kHintInset);
  painter.drawText(inside, static_cast<int>(Qt::AlignHCenter) | static_cast<int>(Qt::AlignTop) | Qt::TextWordWrap,
                   QStringLiteral("Elija un lugar en el mapa para ver aquí sus indicadores."));
}

// Another width breaks the texts elsewhere.
void IndicatorTree::resizeEvent(QResizeEvent* event) {
  QTreeWidget::resizeEvent(event);
  scheduleDelayedItemsLayout();
}

// Who comes by the keyboard sees where he is.
void IndicatorTree::focusInEvent(QFocusEvent* event) {
  QTreeWidget::focusInEvent(event);
  if (isKeyboardFocus(*event) && currentItem() != nullptr) currentItem()->setSelected(true);
}

void IndicatorTree::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return askForCopy();
  if (event->matches(QKeySequence::SelectAll)) return emit copyAllAsked();
  QTreeWidgetItem* item = currentItem();
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (item != nullptr) item->setExpanded(!item->isExpanded());
      return;
    case Qt::Key_Asterisk:
      if (item != nullptr) openBranch(*item, true);
      return;
    default:
      QTreeWidget::keyPressEvent(event);
  }
}

void IndicatorTree::askForCopy() {
  const QList<QTreeWidgetItem*> chosen = selectedItems();
  if (!chosen.isEmpty()) emit copyAsked(chosen.constFirst());
}

// Each branch by itself, so that each is told.
void IndicatorTree::openBranch(QTreeWidgetItem& item, bool open) {
  for (int i = 0; i < item.childCount(); ++i) openBranch(*item.child(i), open);
  if (item.childCount() > 0) item.setExpanded(open);
}

void IndicatorTree::openAll(bool open) {
  for (int i = 0; i < topLevelItemCount(); ++i) openBranch(*topLevelItem(i), open);
}

void IndicatorTree::contextMenuEvent(QContextMenuEvent* event) {
  if (QTreeWidgetItem* item = itemFromIndex(menuItemOf(*this, *event))) setCurrentItem(item);
  const bool anyNode = topLevelItemCount() > 0;
  const bool isChosen = !selectedItems().isEmpty();
  const bool isBranch = isChosen && currentItem() != nullptr && currentItem()->childCount() > 0;
  const auto openCurrent = [this](bool open) {
    if (QTreeWidgetItem* item = currentItem()) openBranch(*item, open);
  };
  popUpMenu(*this, menuPlace(*this, *event),
            {{"&Copiar", [this] { askForCopy(); }, isChosen, QKeySequence::Copy},
             {"Copiar &todo", [this] { emit copyAllAsked(); }, anyNode, QKeySequence::SelectAll},
             {},
             {"&Desplegar rama", [openCurrent] { openCurrent(true); }, isBranch, Qt::Key_Asterisk},
             {"&Plegar rama", [openCurrent] { openCurrent(false); }, isBranch},
             {},
             {"D&esplegar todo", [this] { openAll(true); }, anyNode},
             {"P&legar todo", [this] { openAll(false); }, anyNode}});
}

void IndicatorTree::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const {
  if (!model()->hasChildren(index)) return;
  const QRect mark(rect.right() - indentation() + 1, rect.top() + kPadding, indentation(), fontMetrics().height());
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
