#include "hosts/desktop/qt_host.h"

#include <QApplication>
#include <QPixmap>
#include <QScreen>
#include <utility>

#include "forms/web_browser.h"
#include "hosts/desktop/twips.h"
#include "hosts/desktop/views/web_browser_view.h"
#include "hosts/desktop/window_placement.h"

namespace desktop {

QtHost::QtHost(screen::ProgramCalls& calls, motor::WidgetHandles& handles, std::string applicationFolder)
    : DisplayListener(calls), handles_(handles), applicationFolder_(std::move(applicationFolder)) {
  calls.returned = [this] { afterCall(); };
}

QtHost::~QtHost() {
  closeAll();
  calls().returned = nullptr;
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
  prepared_.clear();
}

void QtHost::prepare(forms::Form& form) {
  if (windowOf(form) != nullptr || prepared_.contains(&form)) return;
  auto window = makeWindow(form);
  window->resize(firstPlaceOf(form).size());
  window->grab();
  prepared_[&form] = std::move(window);
}

void QtHost::formLoaded(forms::Form& form) {
  FormWindow* window = takeWindow(form).release();  // ended by formUnloaded or closeAll
  windows_[&form] = window;
  place(*window);
}

std::unique_ptr<FormWindow> QtHost::makeWindow(forms::Form& form) {
  QWidget* owner = nullptr;
  for (const auto& [other, window] : windows_) {
    if (screen::lookOf(*other) == screen::FormLook::window) owner = window.data();
  }
  return std::make_unique<FormWindow>(form, calls(), owner);
}

std::unique_ptr<FormWindow> QtHost::takeWindow(forms::Form& form) {
  auto prepared = prepared_.extract(&form);
  if (prepared.empty()) return makeWindow(form);
  prepared.mapped()->syncAll();
  return std::move(prepared.mapped());
}

QRect QtHost::firstPlaceOf(const forms::Form& form) const {
  if (firstSize_ && screen::lookOf(form) == screen::FormLook::window) return {QPoint(), *firstSize_};
  const QScreen* screen = QGuiApplication::primaryScreen();
  const QSize stored = screen::lookOf(form) == screen::FormLook::palette
                           ? paletteSize(form)
                           : QSize(toPixels(form.width()), toPixels(form.height()));
  return firstPlace(screen::lookOf(form), stored,
                    screen == nullptr ? QRect(QPoint(), stored) : screen->availableGeometry());
}

// The layout that the program makes while it loads a form is already that of the window's real size.
void QtHost::place(FormWindow& window) const {
  forms::Form& form = window.form();
  const QRect place = firstPlaceOf(form);
  const screen::FormLook look = screen::lookOf(form);
  if (!firstSize_ || look != screen::FormLook::window) window.setMinimumSize(smallestSize(look));
  window.move(place.topLeft());
  window.resize(place.size());
  if (look == screen::FormLook::palette) window.setFixedSize(place.size());  // larger, it would show nothing more
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

void QtHost::navigated(forms::WebBrowser& browser, const std::string& path) {
  auto* view = dynamic_cast<WebBrowserView*>(viewOf(browser));
  if (view != nullptr) view->navigate(path, applicationFolder_);
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

// The program is over when its last form is gone.
void QtHost::afterCall() {
  for (const auto& [form, window] : windows_) {
    if (window != nullptr) window->syncChoices();
  }
  if (windows_.empty() && calls().ended) calls().ended();
}

}  // namespace desktop
