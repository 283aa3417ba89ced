#include "widget_hands.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>

#include "forms/timer.h"
#include "hosts/desktop/twips.h"
#include "hosts/desktop/user_hands.h"
#include "hosts/desktop/views/tab_row.h"
#include "hosts/headless/model_hands.h"
#include "hosts/headless/script_line.h"
#include "text/utf8.h"

namespace desktop_replay {
namespace {

namespace hands = desktop::hands;

// Where what is typed arrives.
QWidget& keyboardOf(QWidget& widget) {
  auto* combo = qobject_cast<QComboBox*>(&widget);
  return combo != nullptr && combo->lineEdit() != nullptr ? *combo->lineEdit() : widget;
}

void press(QWidget& widget, QKeySequence::StandardKey key) {
  const QKeyCombination combination = QKeySequence(key)[0];
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, combination.key(), combination.keyboardModifiers());
    QCoreApplication::sendEvent(&widget, &event);
  }
}

}  // namespace

QWidget& WidgetHands::widgetOf(const forms::Control& control, const char* what) const {
  const auto* view = windowOf(control.form()).viewOf(control);
  if (view == nullptr || view->widget() == nullptr) headless::cannot(control, what);
  return *view->widget();
}

desktop::FormWindow& WidgetHands::windowOf(const forms::Form& form) const {
  desktop::FormWindow* window = host_.windowOf(form);
  if (window == nullptr) throw headless::ScriptError(form.name() + " has no window");
  return *window;
}

void WidgetHands::click(forms::Control& control) {
  if (!isThere(control)) return;
  hands::click(widgetOf(control, "clicked"));
  settle_();
}

void WidgetHands::pick(forms::Control& control, int index) {
  if (!isThere(control)) return;
  QWidget& widget = widgetOf(control, "selected from");
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    hands::pick(*combo, index);
  } else if (auto* list = qobject_cast<QListWidget*>(&widget)) {
    QListWidgetItem* item = list->item(index);
    list->scrollToItem(item);
    hands::click(*list->viewport(), list->visualItemRect(item).center());
  } else {
    auto* row = qobject_cast<desktop::TabRow*>(&widget);
    if (row == nullptr) row = widget.findChild<desktop::TabRow*>();
    if (row == nullptr) headless::cannot(control, "selected from");
    hands::click(*row, row->tabRect(index).center());
  }
  settle_();
}

void WidgetHands::enter(forms::Control& control) {
  if (!isThere(control)) return;
  QFocusEvent event(QEvent::FocusIn, Qt::MouseFocusReason);
  QCoreApplication::sendEvent(&widgetOf(control, "entered"), &event);
  settle_();
}

void WidgetHands::pointAt(forms::Control& control) {
  if (!isThere(control)) return;
  if (&control == &control.form()) {
    hands::pointAt(windowOf(control.form()), QPoint(1, 1));
  } else {
    hands::pointAt(widgetOf(control, "pointed at"));
  }
  settle_();
}

void WidgetHands::replaceText(QWidget& box, const QString& text) const {
  press(box, QKeySequence::SelectAll);
  if (text.isEmpty()) {
    press(box, QKeySequence::Delete);
  } else {
    QApplication::clipboard()->setText(text);
    press(box, QKeySequence::Paste);
  }
  settle_();
}

void WidgetHands::type(forms::Control& control, const std::string& text) {
  if (!isThere(control)) return;
  QWidget& box = keyboardOf(widgetOf(control, "typed into"));
  enter(control);
  replaceText(box, "");
  for (const std::string& character : text::characters(text)) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString::fromStdString(character));
    QCoreApplication::sendEvent(&box, &event);
    settle_();
  }
}

void WidgetHands::edit(forms::Control& control, const std::string& text) {
  if (!isThere(control)) return;
  replaceText(keyboardOf(widgetOf(control, "edited")), QString::fromStdString(text));
}

void WidgetHands::doubleClick(forms::Form& form) {
  hands::doubleClick(windowOf(form));
  settle_();
}

void WidgetHands::close(forms::Form& form) {
  windowOf(form).close();
  settle_();
}

void WidgetHands::resize(forms::Form& form, forms::Twips width, forms::Twips height) {
  windowOf(form).resize(desktop::toPixels(width), desktop::toPixels(height));
  settle_();
}

void WidgetHands::minimize(forms::Form& form) {
  windowOf(form).showMinimized();
  settle_();
}

void WidgetHands::restore(forms::Form& form) {
  windowOf(form).showNormal();
  settle_();
}

void WidgetHands::tick(forms::Form& form) {
  for (forms::Control* control : form.controls()) {
    if (dynamic_cast<forms::Timer*>(control) == nullptr || host_.windowOf(form) == nullptr) continue;
    auto* clock = windowOf(form).viewOf(*control)->findChild<QTimer*>();
    if (clock == nullptr || !clock->isActive()) continue;
    QTimerEvent event(clock->timerId());
    QCoreApplication::sendEvent(clock, &event);
  }
  settle_();
}

}  // namespace desktop_replay
