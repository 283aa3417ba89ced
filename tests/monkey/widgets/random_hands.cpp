#include "random_hands.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <array>
#include <iterator>

namespace monkey {
namespace {

constexpr std::array kKeys{
    Qt::Key_Tab,   Qt::Key_Tab,    Qt::Key_Backtab,   Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,    Qt::Key_Down,
    Qt::Key_Down,  Qt::Key_Home,   Qt::Key_End,       Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_Return,
    Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Plus,     Qt::Key_Minus, Qt::Key_F1,
    Qt::Key_F4,    Qt::Key_F6,     Qt::Key_Menu,      Qt::Key_A,      Qt::Key_C,        Qt::Key_F,     Qt::Key_P,
    Qt::Key_V,     Qt::Key_X,      Qt::Key_Z,
};
constexpr std::array<Qt::KeyboardModifiers, 6> kModifiers{Qt::NoModifier,    Qt::NoModifier,
                                                          Qt::NoModifier,    Qt::ControlModifier,
                                                          Qt::ShiftModifier, Qt::ControlModifier | Qt::ShiftModifier};
constexpr std::array kTexts{"ava", "bri", "enc", "x", "%no", "a\"b", "  ", "pino", "1999", "_re"};
constexpr std::array kWidths{1, 200, 640, 800, 1024, 1280, 1440, 1920};
constexpr std::array kHeights{1, 150, 480, 600, 768, 900, 1080};

// The order of the toolkit's own lists is another in each run.
std::vector<QWidget*> windowsInOrder() {
  std::vector<QWidget*> windows;
  for (QWidget* each : QApplication::topLevelWidgets()) {
    const bool isTip = each->windowType() == Qt::ToolTip;
    if (each->isVisible() && !isTip && each->windowHandle() != nullptr) windows.push_back(each);
  }
  const auto key = [](const QWidget* window) {
    return std::tuple(window->objectName(), QString::fromLatin1(window->metaObject()->className()),
                      window->windowTitle(), window->x(), window->y(), window->width());
  };
  std::ranges::sort(windows, [&](const QWidget* a, const QWidget* b) { return key(a) < key(b); });
  return windows;
}

// Where the user can point at it, in its own pixels: a maximised window may be larger than the desktop lets it be.
QRect reachable(const QWidget& widget) {
  const QWindow* window = widget.window()->windowHandle();
  if (window == nullptr) return {};
  const QRect seen = widget.visibleRegion().boundingRect();
  return seen & QRect(widget.mapFrom(widget.window(), QPoint(0, 0)), window->size());
}

void addVisible(std::vector<QWidget*>& all, QWidget& widget) {
  if (!widget.isVisible() || reachable(widget).isEmpty()) return;
  all.push_back(&widget);
  for (QObject* child : widget.children()) {
    auto* inside = qobject_cast<QWidget*>(child);
    if (inside != nullptr && !inside->isWindow()) addVisible(all, *inside);
  }
}

void settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::string at(const QWidget& widget, QPoint point) {
  return nameOf(widget) + " " + std::to_string(point.x()) + "," + std::to_string(point.y());
}

}  // namespace

std::string nameOf(const QWidget& widget) {
  for (const QWidget* each = &widget; each != nullptr; each = each->parentWidget()) {
    if (each->objectName().isEmpty() || each->objectName().startsWith(QStringLiteral("qt_"))) continue;
    const std::string name = each->objectName().toStdString();
    return each == &widget ? name : widget.metaObject()->className() + std::string(" in ") + name;
  }
  return widget.metaObject()->className();
}

const std::vector<RandomHands::Habit>& RandomHands::habits() {
  static const std::vector<Habit> all{
      {36, &RandomHands::click}, {3, &RandomHands::doubleClick}, {4, &RandomHands::rightClick},
      {8, &RandomHands::drag},   {12, &RandomHands::move},       {8, &RandomHands::wheel},
      {18, &RandomHands::key},   {3, &RandomHands::typeText},    {4, &RandomHands::focus},
      {3, &RandomHands::resize}, {1, &RandomHands::minimize},    {1, &RandomHands::close},
  };
  return all;
}

std::string RandomHands::act() {
  QWidget* widget = someWidget();
  if (widget == nullptr) {
    QTest::qWait(10);
    return "wait";
  }
  int total = 0;
  for (const Habit& habit : habits()) total += habit.weight;
  int at = below(total);
  const auto habit = std::ranges::find_if(habits(), [&](const Habit& each) { return (at -= each.weight) < 0; });
  const bool hurries = widget->window()->windowType() == Qt::SplashScreen;  // which would go by itself
  const std::string done = hurries && onceIn(5) ? doubleClick(*widget) : (this->*habit->deed)(*widget);
  settle();
  return done;
}

// Where a menu or a list is open it is what the hands are at, mostly; else as often as not something that the keyboard
// reaches too.
QWidget* RandomHands::someWidget() {
  std::vector<QWidget*> all;
  QWidget* popUp = QApplication::activePopupWidget();
  if (popUp != nullptr && popUp->windowHandle() != nullptr && !onceIn(4)) {
    addVisible(all, *popUp);
  } else {
    for (QWidget* window : windowsInOrder()) addVisible(all, *window);
  }
  std::vector<QWidget*> lively;
  std::ranges::copy_if(all, std::back_inserter(lively),
                       [](const QWidget* each) { return each->focusPolicy() != Qt::NoFocus; });
  const std::vector<QWidget*>& choice = lively.empty() || onceIn(2) ? all : lively;
  return choice.empty() ? nullptr : choice[static_cast<std::size_t>(below(static_cast<int>(choice.size())))];
}

QPoint RandomHands::somewhereIn(const QWidget& widget) {
  const QRect room = reachable(widget);
  return room.topLeft() + QPoint(below(room.width()), below(room.height()));
}

// What is clicked on may be gone afterwards.
std::string RandomHands::click(QWidget& widget) {
  const QPoint point = somewhereIn(widget);
  const std::string done = "click " + at(widget, point);
  QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, kModifiers[static_cast<std::size_t>(below(6))],
                    widget.mapTo(widget.window(), point));
  return done;
}

std::string RandomHands::doubleClick(QWidget& widget) {
  const QPoint point = somewhereIn(widget);
  const std::string done = "double click " + at(widget, point);
  QTest::mouseDClick(widget.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                     widget.mapTo(widget.window(), point));
  return done;
}

std::string RandomHands::rightClick(QWidget& widget) {
  const QPoint point = somewhereIn(widget);
  const std::string done = "right click " + at(widget, point);
  QTest::mouseClick(widget.window()->windowHandle(), onceIn(4) ? Qt::MiddleButton : Qt::RightButton, Qt::NoModifier,
                    widget.mapTo(widget.window(), point));
  return done;
}

// The window may be gone in between.
std::string RandomHands::drag(QWidget& widget) {
  const QPoint from = somewhereIn(widget);
  const QPoint to = onceIn(4) ? QPoint(-50, -50) : somewhereIn(widget);
  const std::string done = "drag " + at(widget, from) + " to " + at(widget, to);
  const QPoint start = widget.mapTo(widget.window(), from);
  const QPoint end = widget.mapTo(widget.window(), to);
  const QPointer<QWindow> window = widget.window()->windowHandle();
  const Qt::MouseButton button = onceIn(6) ? Qt::MiddleButton : Qt::LeftButton;
  QTest::mousePress(window, button, Qt::NoModifier, start);
  for (int step = 1; step <= 3 && window != nullptr; ++step) {
    settle();
    if (window != nullptr) QTest::mouseMove(window, start + (end - start) * step / 3);
  }
  settle();
  if (window != nullptr) QTest::mouseRelease(window, button, Qt::NoModifier, end);
  return done;
}

std::string RandomHands::move(QWidget& widget) {
  const QPoint point = somewhereIn(widget);
  const std::string done = "move " + at(widget, point);
  QTest::mouseMove(widget.window()->windowHandle(), widget.mapTo(widget.window(), point));
  return done;
}

std::string RandomHands::wheel(QWidget& widget) {
  const QPoint point = somewhereIn(widget);
  const int angle = (1 + below(3)) * (onceIn(2) ? 120 : -120);
  QWheelEvent event(point, widget.mapToGlobal(point), {}, {0, angle}, Qt::NoButton,
                    onceIn(5) ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
  const std::string done = "wheel " + at(widget, point);
  if (QApplication::activeModalWidget() == nullptr) QCoreApplication::sendEvent(&widget, &event);
  return done;
}

std::string RandomHands::key(QWidget& widget) {
  const Qt::Key key = kKeys[static_cast<std::size_t>(below(std::size(kKeys)))];
  const Qt::KeyboardModifiers modifiers = kModifiers[static_cast<std::size_t>(below(6))];
  QTest::keyClick(widget.window()->windowHandle(), key, modifiers);
  return "key " + std::to_string(key) + " with " + std::to_string(modifiers.toInt());
}

std::string RandomHands::typeText(QWidget& widget) {
  const std::string text = kTexts[static_cast<std::size_t>(below(std::size(kTexts)))];
  const QPointer<QWindow> window = widget.window()->windowHandle();
  for (const char c : text) {
    if (window != nullptr) QTest::keyClick(window, c);
    settle();
  }
  return "type " + text;
}

std::string RandomHands::focus(QWidget& widget) {
  const std::string done = "focus " + nameOf(widget);
  const QPointer<QWidget> alive = &widget;
  widget.window()->activateWindow();
  if (alive != nullptr && widget.focusPolicy() != Qt::NoFocus) {
    widget.setFocus(onceIn(2) ? Qt::TabFocusReason : Qt::MouseFocusReason);
  }
  return done;
}

std::string RandomHands::resize(QWidget& widget) {
  QWidget* window = widget.window();
  const QSize size(kWidths[static_cast<std::size_t>(below(std::size(kWidths)))],
                   kHeights[static_cast<std::size_t>(below(std::size(kHeights)))]);
  const std::string done =
      "resize " + nameOf(*window) + " " + std::to_string(size.width()) + "x" + std::to_string(size.height());
  window->resize(size);
  return done;
}

std::string RandomHands::minimize(QWidget& widget) {
  QWidget* window = widget.window();
  if (window->windowType() != Qt::Window) return "nothing";
  const std::string done = "minimize and restore " + nameOf(*window);
  const QPointer<QWidget> alive = window;
  window->showMinimized();
  settle();
  if (alive != nullptr) onceIn(2) ? window->showNormal() : window->showMaximized();
  return done;
}

std::string RandomHands::close(QWidget& widget) {
  QWidget* window = widget.window();
  const bool isMain = window->windowType() == Qt::Window;
  if (isMain && !onceIn(4)) return "nothing";
  const std::string done = "close " + nameOf(*window);
  window->close();
  return done;
}

}  // namespace monkey
