#pragma once

#include <QPointer>
#include <QSize>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "hosts/desktop/form_window.h"
#include "hosts/screen/display_listener.h"
#include "motor/window/widget_handles.h"

namespace desktop {

// Shows the program's forms as windows.
class QtHost : public screen::DisplayListener {
 public:
  // Both references outlive the host. Pages are shown from the application folder alone: none where none is given.
  QtHost(screen::ProgramCalls& calls, motor::WidgetHandles& handles, std::string applicationFolder = {});
  ~QtHost() override;

  [[nodiscard]] const std::string& applicationFolder() const { return applicationFolder_; }
  // The working window's first size instead of most of the screen; it may be made as small as one likes.
  void setFirstSize(QSize size) { firstSize_ = size; }
  // The window of a form that is loaded, or null.
  [[nodiscard]] FormWindow* windowOf(const forms::Form& form) const;
  // The shown form with that caption, or null.
  [[nodiscard]] FormWindow* windowTitled(const std::string& title) const;
  // The window that messages and dialogs lie in front of, or null.
  [[nodiscard]] QWidget* frontWindow() const;
  // Closes all windows at once, without a word to the program.
  void closeAll();
  // Makes the window of a form that is not loaded yet and paints it where nobody sees it, so that the form's load finds
  // it ready. Changes nothing in the model; nothing for a form that has a window.
  void prepare(forms::Form& form);

  void formLoaded(forms::Form& form) override;
  void formShown(forms::Form& form) override;
  void formHidden(forms::Form& form) override;
  void formUnloaded(forms::Form& form) override;
  void navigated(forms::WebBrowser& browser, const std::string& path) override;
  [[nodiscard]] std::int64_t windowHandle(const forms::Control& control) override;
  [[nodiscard]] std::string locationName(const forms::WebBrowser& browser) override;

 private:
  [[nodiscard]] FormWindow* displayOf(const forms::Form& form) const override { return windowOf(form); }
  [[nodiscard]] std::unique_ptr<FormWindow> makeWindow(forms::Form& form);
  // The window prepared for a form, showing what the form now holds; else a new one.
  [[nodiscard]] std::unique_ptr<FormWindow> takeWindow(forms::Form& form);
  [[nodiscard]] QRect firstPlaceOf(const forms::Form& form) const;
  void place(FormWindow& window) const;
  void afterCall();

  motor::WidgetHandles& handles_;
  std::string applicationFolder_;
  std::optional<QSize> firstSize_;
  // A window belongs to its form's load; the toolkit may end it earlier, with the window that it lies in front of.
  std::map<const forms::Form*, QPointer<FormWindow>> windows_;
  std::map<const forms::Form*, std::unique_ptr<FormWindow>> prepared_;  // not shown to anybody yet
};

}  // namespace desktop
