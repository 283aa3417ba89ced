#include "hosts/desktop/qt_host.h"

#include <QApplication>
#include <QScreen>
#include <utility>

#include "forms/label.h"
#include "forms/web_browser.h"
#include "hosts/desktop/twips.h"
#include "hosts/desktop/views/web_browser_view.h"
#include "hosts/desktop/window_placement.h"

namespace desktop {

QtHost::QtHost(ProgramCalls& calls, motor::WidgetHandles& handles, std::string applicationFolder)
    : calls_(calls), handles_(handles), applicationFolder_(std::move(applicationFolder)) {
  calls_.returned = [this] { afterCall(); };
}

QtHost::~QtHost() {
  closeAll();
  calls_.returned = nullptr;
}

FormWindow* QtHost::windowOf(const forms::Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.data();
}

FormWindow* QtHost::windowTitled(const std::string& title) const {
  for (const auto& [form, window] : windows_) {
    if (window != nullptr && form->caption() == title && form->visible()) return window.data();
  }
  return nullptr;
}

QWidget* QtHost::frontWindow() const {
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (const auto& [form, window] : windows_) {
    if (window != nullptr && window->isVisible()) return window.data();
  }
  return nullptr;
}

void QtHost::closeAll() {
  for (const auto& [form, window] : std::exchange(windows_, {})) delete window.data();
}

void QtHost::formLoaded(forms::Form& form) {
  QWidget* owner = nullptr;
  for (const auto& [other, window] : windows_) {
    if (lookOf(*other) == FormLook::window) owner = window.data();
  }
  auto* window = new FormWindow(form, calls_, owner);  // ended by formUnloaded or closeAll
  windows_[&form] = window;
  place(*window);
}

// The layout that the program makes while it loads a form is already that of the window's real size.
void QtHost::place(FormWindow& window) const {
  forms::Form& form = window.form();
  const QScreen* screen = QGuiApplication::primaryScreen();
  const QSize stored =
      lookOf(form) == FormLook::palette ? paletteSize(form) : QSize(toPixels(form.width()), toPixels(form.height()));
  QRect place =
      firstPlace(lookOf(form), stored, screen == nullptr ? QRect(QPoint(), stored) : screen->availableGeometry());
  if (firstSize_ && lookOf(form) == FormLook::window) {
    place = QRect(QPoint(), *firstSize_);
  } else {
    window.setMinimumSize(smallestSize(lookOf(form)));
  }
  window.move(place.topLeft());
  window.resize(place.size());
  form.setLeft(toTwips(place.left()));
  form.setTop(toTwips(place.top()));
  form.setWidth(toTwips(place.width()));
  form.setHeight(toTwips(place.height()));
}

void QtHost::formShown(forms::Form& form) {
  FormWindow* window = windowOf(form);
  if (window == nullptr) return;
  window->show();
  window->raise();
}

void QtHost::formHidden(forms::Form& form) {
  if (FormWindow* window = windowOf(form)) window->hide();
}

// The window may be in the middle of an event of its own, so it goes when that is done. A palette goes with the window
// that it lies in front of.
void QtHost::formUnloaded(forms::Form& form) {
  if (FormWindow* window = windowOf(form)) {
    for (const auto& [other, palette] : windows_) {
      if (palette != nullptr && palette->parentWidget() == window) palette->closeWithOwner();
    }
    window->hide();
    window->deleteLater();
  }
  windows_.erase(&form);
}

void QtHost::written(forms::Control& control, forms::Property property) {
  FormWindow* window = windowOf(control.form());
  if (window == nullptr) return;
  if (&control == &control.form()) return window->syncForm(property);
  window->turnPages();
  ControlView* view = window->viewOf(control);
  if (view == nullptr) return;
  view->sync(property);
  if (property == forms::Property::Visible) window->visibilityWritten(control);
  if (const auto* label = dynamic_cast<const forms::Label*>(&control)) {
    if (property == forms::Property::Caption && control.name() == kCommandLabel) {
      window->markCurrentTool(label->caption());
    }
  }
  if (calls_.isBusy()) window->paintNow(*view, property);
}

void QtHost::itemAdded(forms::Control& control, const std::string& item) {
  if (ControlView* view = viewOf(control)) view->itemAdded(item);
}

void QtHost::cleared(forms::Control& control) {
  if (ControlView* view = viewOf(control)) view->cleared();
}

void QtHost::nodeAdded(forms::TreeView& tree, const forms::Node& node) {
  if (ControlView* view = viewOf(tree)) view->nodeAdded(node);
}

void QtHost::nodeExpanded(forms::TreeView& tree, const forms::Node& node) {
  if (ControlView* view = viewOf(tree)) view->nodeExpanded(node);
}

void QtHost::navigated(forms::WebBrowser& browser, const std::string& path) {
  if (ControlView* view = viewOf(browser)) view->navigated(path, applicationFolder_);
}

std::int64_t QtHost::windowHandle(const forms::Control& control) {
  FormWindow* window = windowOf(control.form());
  if (window == nullptr) return 0;
  if (&control == &control.form()) return handles_.handleOf(*window);
  const ControlView* view = window->viewOf(control);
  return view == nullptr || view->widget() == nullptr ? 0 : handles_.handleOf(*view->widget());
}

std::string QtHost::locationName(const forms::WebBrowser& browser) {
  const auto* view = dynamic_cast<const WebBrowserView*>(viewOf(browser));
  return view == nullptr ? "" : view->locationName().toStdString();
}

ControlView* QtHost::viewOf(const forms::Control& control) const {
  const FormWindow* window = windowOf(control.form());
  return window == nullptr ? nullptr : window->viewOf(control);
}

// The program is over when its last form is gone.
void QtHost::afterCall() {
  for (const auto& [form, window] : windows_) {
    if (window != nullptr) window->syncChoices();
  }
  if (windows_.empty() && calls_.ended) calls_.ended();
}

}  // namespace desktop
