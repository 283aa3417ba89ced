#include "motor/window/map_widget.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDrag>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QWheelEvent>
#include <cmath>

#include "motor/window/export/map_mime_data.h"
#include "motor/window/tools/tool_for.h"

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
constexpr int kDraggedWidth = 180;  // of the small picture that goes along with the pointer
constexpr double kDraggedOpacity = 0.8;

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

Pointer pointerOf(const QMouseEvent& event) { return {event.position(), event.modifiers()}; }

}  // namespace

MapWidget::MapWidget(MapWindow& window) : window_(&window) {
  setAccessibleName(QStringLiteral("Mapa"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  settle_.setSingleShot(true);
  settle_.setInterval(kSettleMilliseconds);
  connect(&settle_, &QTimer::timeout, this, [this] { settle(); });
  updateCursor();
}

MapWidget::~MapWidget() = default;

void MapWidget::refresh() {
  useCurrentTool();
  updateCursor();
  update();
}

void MapWidget::detach() {
  window_ = nullptr;
  held_.reset();
  hover_.clear();
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

// --- tools ---

// A tool that is laid down leaves nothing behind. It may be the one that is just telling the map window something, so
// whoever calls a tool holds it.
void MapWidget::useCurrentTool() {
  if (window_ == nullptr || (tool_ && tool_->tool() == window_->tool())) return;
  if (held_ == tool_) held_.reset();
  tool_ = toolFor(window_->tool(), *this);
  lightUp();
}

MapTool& MapWidget::tool() {
  useCurrentTool();
  return *tool_;
}

void MapWidget::updateCursor() {
  if (window_ == nullptr) return unsetCursor();
  if (held_) return setCursor(held_->cursor());
  setCursor(spaceHeld_ ? QCursor(Qt::OpenHandCursor) : tool().cursor());
}

void MapWidget::startMoving() {
  settle_.start();
  if (hover_.clear()) update();
}

// The map rests: it is painted at its best, and what is under the pointer lights up again.
void MapWidget::settle() {
  lightUp();
  update();
}

MapWidget::Place MapWidget::place() const { return {window_->map().centre, window_->map().zoomMetres}; }

// Where the program has moved the map under a resting pointer, that is over something that nobody has pointed at.
void MapWidget::lightUpAgain() {
  if (window_ == nullptr) return;
  if (!settle_.isActive() && place() != litPlace_) pointer_.reset();
  lightUp();
}

void MapWidget::lightUp() {
  if (window_ == nullptr) return;
  hoverRevision_ = window_->revision();
  litPlace_ = place();
  const bool lights = pointer_ && !held_ && !settle_.isActive() && !spaceHeld_ && tool_ && tool_->lightsObjects();
  if (lights ? hover_.pointTo(*window_, *pointer_) : hover_.clear()) update();
}

const PlacedLabels& MapWidget::labels() {
  const MapPicture::Key key = pictureKey();
  if (labelsKey_ != key) {
    const std::vector<PaintedText> texts =
        picture_.texts(window_->map(), key, scaleBarPlate(scaleBar(), scaleBarCorner()));
    labels_ = PlacedLabels(window_->map(), size(), texts, texts_);
    labelsKey_ = key;
  }
  return labels_;
}

// The picture is there to be taken while the drag lasts; the session may end meanwhile.
void MapWidget::takeOut() {
  if (window_ == nullptr) return;
  auto* drag = new QDrag(this);  // the toolkit deletes it when it is over
  drag->setMimeData(new MapMimeData(window_->map(), size()));
  const double scale = std::min(1.0, static_cast<double>(kDraggedWidth) / width());
  QPixmap small((QSizeF(size()) * scale).toSize());
  small.fill(Qt::transparent);
  QPainter painter(&small);
  painter.setOpacity(kDraggedOpacity);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.scale(scale, scale);
  picture_.paint(painter, window_->map(), size());
  painter.resetTransform();
  painter.setPen(kEdge);
  painter.drawRect(small.rect().adjusted(0, 0, -1, -1));
  painter.end();
  drag->setPixmap(small);
  drag->setHotSpot(small.rect().center());
  held_.reset();  // the toolkit keeps the release of the button for itself
  drag->exec(Qt::CopyAction);
}

void MapWidget::copy() {
  if (window_ != nullptr) QGuiApplication::clipboard()->setMimeData(new MapMimeData(window_->map(), size()));
}

// --- painting ---

MapPicture::Key MapWidget::pictureKey() const { return {window_->revision(), size(), devicePixelRatioF()}; }

void MapWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (window_ == nullptr) {
    painter.fillRect(rect(), Qt::white);
    return;
  }
  if (hoverRevision_ != window_->revision()) lightUpAgain();
  paintMap(painter);
  const MapView view(window_->map(), size());
  hover_.paintOutline(painter, view, devicePixelRatioF());
  selection_.paint(painter, *window_, view, devicePixelRatioF(), settle_.isActive());
  paintScaleBar(painter, scaleBar(), scaleBarCorner());
  if (tool_) tool_->paint(painter, view);
  hover_.paintNames(painter, view);
  paintEdge(painter);
  if (showsFocus_ && hasFocus()) paintFocusRing(painter);
}

// While the map is moving a picture that is out of date is shown moved and scaled, unless that leaves a part of the
// window empty and the map can be painted in time.
void MapWidget::paintMap(QPainter& painter) {
  const MapPicture::Key key = pictureKey();
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

// --- the mouse ---

void MapWidget::press(QMouseEvent* event, void (MapTool::*begin)(const Pointer&)) {
  if (window_ == nullptr || held_) return;
  const bool left = event->button() == Qt::LeftButton;
  const bool pans = event->button() == Qt::MiddleButton || (left && spaceHeld_);
  if (!left && !pans) return;
  useCurrentTool();
  const std::shared_ptr<MapTool> tool = pans ? toolFor({.command = tools::kGrabber}, *this) : tool_;
  held_ = tool;
  heldButton_ = event->button();
  pointer_ = event->position();
  lightUp();
  ((*tool).*(pans ? &MapTool::press : begin))(pointerOf(*event));
  updateCursor();
}

void MapWidget::mousePressEvent(QMouseEvent* event) { press(event, &MapTool::press); }

void MapWidget::mouseDoubleClickEvent(QMouseEvent* event) { press(event, &MapTool::doublePress); }

void MapWidget::mouseMoveEvent(QMouseEvent* event) {
  if (window_ == nullptr) return;
  pointer_ = event->position();
  useCurrentTool();
  const QPointer<MapWidget> self(this);
  if (const std::shared_ptr<MapTool> held = held_) {
    held->drag(pointerOf(*event));
  } else {
    const std::shared_ptr<MapTool> tool = tool_;
    tool->hover(pointerOf(*event));
  }
  if (self) lightUp();
}

void MapWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != heldButton_) return;
  heldButton_ = Qt::NoButton;
  const std::shared_ptr<MapTool> held = std::exchange(held_, nullptr);
  if (window_ == nullptr) return;
  const QPointer<MapWidget> self(this);
  if (held) held->release(pointerOf(*event));
  if (!self) return;
  updateCursor();
  lightUpAgain();
}

void MapWidget::leaveEvent(QEvent* event) {
  pointer_.reset();
  lightUp();
  QWidget::leaveEvent(event);
}

void MapWidget::wheelEvent(QWheelEvent* event) {
  const int angle = event->angleDelta().y();
  if (window_ == nullptr || angle == 0) return;
  startMoving();
  window_->zoomedBy(std::pow(kNotchFactor, angle / kWheelNotch), toPoint(event->position()));
  update();
  event->accept();
}

// --- the keyboard ---

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
      window_->shownEntire();
      return true;
    default:
      return false;
  }
}

// The gesture that is under way, else what the tool in the hand has begun.
bool MapWidget::giveUp() {
  const std::shared_ptr<MapTool> tool = held_ ? held_ : tool_;
  const bool hadBegun = tool && tool->cancel();
  held_.reset();
  updateCursor();
  return hadBegun;
}

// The keys that the map takes before shortcuts of its window do.
bool MapWidget::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    event->accept();
    return true;
  }
  return QWidget::event(event);
}

void MapWidget::keyPressEvent(QKeyEvent* event) {
  if (window_ == nullptr) return;
  if (event->matches(QKeySequence::Copy)) {
    copy();
  } else if (event->key() == Qt::Key_Space) {
    spaceHeld_ = true;
    lightUp();
    updateCursor();
  } else if ((event->key() == Qt::Key_Escape && giveUp()) || (event->key() == Qt::Key_Backspace && tool().takeBack())) {
    update();
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
  pointer_.reset();
  lightUp();
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
