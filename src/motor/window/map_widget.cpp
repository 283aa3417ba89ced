#include "motor/window/map_widget.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <QWheelEvent>
#include <cmath>

#include "motor/drawing/scale_bar.h"
#include "motor/session/map_view.h"
#include "motor/window/map_cursor.h"

namespace motor {

namespace {

constexpr int kSettleMilliseconds = 150;
constexpr double kWheelNotch = 120;   // of a wheel event's angle
constexpr double kNotchFactor = 0.8;  // one notch forward shows so much of the width
constexpr double kKeyFactor = 0.5;
constexpr double kKeyShare = 0.15;  // of the window, panned by an arrow key
constexpr double kScaleBarPixels = 110;
constexpr double kScaleBarInset = 8;
constexpr double kRingPixels = 2;
constexpr QColor kEdge(31, 42, 60, 40);

Point toPoint(QPointF p) { return {p.x(), p.y()}; }

struct KeyMove {
  int key;
  double x, y;  // where the map goes, in window sizes
};
constexpr KeyMove kKeyMoves[] = {
    {Qt::Key_Left, kKeyShare, 0},
    {Qt::Key_Right, -kKeyShare, 0},
    {Qt::Key_Up, 0, kKeyShare},
    {Qt::Key_Down, 0, -kKeyShare},
};

}  // namespace

MapWidget::MapWidget(MapWindow& window) : window_(&window) {
  setAccessibleName(QStringLiteral("Mapa"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  settle_.setSingleShot(true);
  settle_.setInterval(kSettleMilliseconds);
  connect(&settle_, &QTimer::timeout, this, [this] { update(); });
  updateCursor();
}

void MapWidget::refresh() {
  updateCursor();
  update();
}

void MapWidget::detach() {
  window_ = nullptr;
  settle_.stop();
  update();
}

void MapWidget::fillParent() {
  filler_.emplace(*this);  // anew, since the map may have been given another size meanwhile
  reportSize();
}

void MapWidget::reportSize() {
  if (window_ == nullptr || width() <= 0 || height() <= 0) return;
  if (window_->map().pixelWidth == width() && window_->map().pixelHeight == height()) return;
  window_->resized(width(), height());
}

void MapWidget::updateCursor() {
  if (window_ == nullptr) return unsetCursor();
  if (drag_ == Drag::pan) return setCursor(Qt::ClosedHandCursor);
  if (spaceHeld_) return setCursor(Qt::OpenHandCursor);
  setCursor(cursorFor(window_->tool()));
}

void MapWidget::startMoving() { settle_.start(); }

void MapWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (window_ == nullptr) {
    painter.fillRect(rect(), Qt::white);
    return;
  }
  paintMap(painter);
  paintScaleBar(painter, scaleBar(), scaleBarCorner());
  paintEdge(painter);
  if (showsFocus_ && hasFocus()) paintFocusRing(painter);
}

// While the map is moving a picture that is out of date is shown moved and scaled, unless that leaves a part of the
// window empty and the map can be painted in time.
void MapWidget::paintMap(QPainter& painter) {
  const MapPicture::Key key{window_->revision(), size(), devicePixelRatioF()};
  const bool moving = settle_.isActive() && !picture_.isEmpty();
  if (!picture_.isGoodFor(key)) {
    const auto quality = moving ? picture_.qualityForMoving() : Quality::best;
    if (quality && (!moving || !picture_.covers(window_->map(), size()))) {
      picture_.render(window_->map(), key, *quality, scaleBarPlate(scaleBar(), scaleBarCorner()));
    }
  }
  if (!picture_.isGoodFor(key)) painter.fillRect(rect(), Qt::white);
  picture_.paint(painter, window_->map(), size());
}

ScaleBar MapWidget::scaleBar() const { return scaleBarFor(window_->map().zoomMetres / width(), kScaleBarPixels); }

QPointF MapWidget::scaleBarCorner() const { return {kScaleBarInset, height() - kScaleBarInset}; }

// A hairline tells where a map on white ground ends.
void MapWidget::paintEdge(QPainter& painter) const {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(kEdge, 1));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

// A ring inside the edge, light on its inner side: it is seen on any map. A widget does not get its parent's colours by
// itself where the application has a style sheet.
void MapWidget::paintFocusRing(QPainter& painter) const {
  const double ring = kRingPixels;
  const QPalette& colours = parentWidget() == nullptr ? palette() : parentWidget()->palette();
  painter.save();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, ring, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(QRectF(rect()).adjusted(1.5 * ring, 1.5 * ring, -1.5 * ring, -1.5 * ring));
  painter.setPen(QPen(colours.color(QPalette::Highlight), ring, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(QRectF(rect()).adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2));
  painter.restore();
}

void MapWidget::resizeEvent(QResizeEvent*) { reportSize(); }

void MapWidget::mousePressEvent(QMouseEvent* event) {
  if (window_ == nullptr) return;
  const bool left = event->button() == Qt::LeftButton;
  const bool pans = event->button() == Qt::MiddleButton || (left && (spaceHeld_ || pansByDragging(window_->tool())));
  if (!left && !pans) return;
  drag_ = pans ? Drag::pan : Drag::click;
  pressedAt_ = lastAt_ = event->position();
  updateCursor();
}

// The second press of a double click is a click of its own.
void MapWidget::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void MapWidget::mouseMoveEvent(QMouseEvent* event) {
  if (window_ == nullptr || drag_ != Drag::pan) return;
  const QPointF by = event->position() - lastAt_;
  lastAt_ = event->position();
  startMoving();
  window_->pannedBy(by.x(), by.y());
  update();
}

void MapWidget::mouseReleaseEvent(QMouseEvent* event) {
  const Drag drag = drag_;
  drag_ = Drag::none;
  updateCursor();
  if (window_ == nullptr || drag != Drag::click || event->button() != Qt::LeftButton) return;
  const QPointF moved = event->position() - pressedAt_;
  if (moved.manhattanLength() > QGuiApplication::styleHints()->startDragDistance()) return;
  const Qt::KeyboardModifiers keys = event->modifiers();
  window_->clicked(toPoint(pressedAt_), keys.testFlag(Qt::ShiftModifier), keys.testFlag(Qt::ControlModifier));
}

void MapWidget::wheelEvent(QWheelEvent* event) {
  const int angle = event->angleDelta().y();
  if (window_ == nullptr || angle == 0) return;
  startMoving();
  window_->zoomedBy(std::pow(kNotchFactor, angle / kWheelNotch), toPoint(event->position()));
  update();
  event->accept();
}

bool MapWidget::moveByKey(int key) {
  for (const KeyMove& move : kKeyMoves) {
    if (move.key != key) continue;
    window_->pannedBy(std::round(move.x * width()), std::round(move.y * height()));
    return true;
  }
  const Point middle{width() / 2.0, height() / 2.0};
  switch (key) {
    case Qt::Key_Plus:
      window_->zoomedBy(kKeyFactor, middle);
      return true;
    case Qt::Key_Minus:
      window_->zoomedBy(1 / kKeyFactor, middle);
      return true;
    case Qt::Key_Home:
      showEntire(window_->map());
      window_->changed();
      return true;
    default:
      return false;
  }
}

void MapWidget::keyPressEvent(QKeyEvent* event) {
  if (window_ == nullptr) return;
  if (event->key() == Qt::Key_Space) {
    spaceHeld_ = true;
    updateCursor();
  } else if (moveByKey(event->key())) {
    startMoving();
    update();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void MapWidget::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space) return QWidget::keyReleaseEvent(event);
  if (event->isAutoRepeat()) return;
  spaceHeld_ = false;
  updateCursor();
}

// Who clicks on the map sees where he is; who comes by the keyboard is told.
void MapWidget::focusInEvent(QFocusEvent* event) {
  const Qt::FocusReason reason = event->reason();
  showsFocus_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason ||
                (showsFocus_ && (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason));
  update();
  QWidget::focusInEvent(event);
}

void MapWidget::focusOutEvent(QFocusEvent* event) {
  spaceHeld_ = false;
  update();
  updateCursor();
  QWidget::focusOutEvent(event);
}

void MapWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (window_ == nullptr || window_->shortcutMenu().empty()) return;
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const std::vector<MenuEntry>& entries = window_->shortcutMenu();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const QAction* action = menu->addAction(QString::fromStdString(entries[i].text));
    connect(action, &QAction::triggered, this, [this, i] {
      if (window_ != nullptr) window_->menuChosen(i);
    });
  }
  menu->popup(event->globalPos());
}

}  // namespace motor
