#pragma once

#include <QPointer>
#include <QSize>
#include <map>
#include <optional>
#include <string>

#include "forms/listener.h"
#include "hosts/desktop/form_window.h"
#include "hosts/desktop/program_calls.h"
#include "motor/window/widget_handles.h"

namespace desktop {

// Shows the program's forms as windows.
class QtHost : public forms::Listener {
 public:
  // Both references outlive the host. Pages are shown from the application folder alone: none where none is given.
  QtHost(ProgramCalls& calls, motor::WidgetHandles& handles, std::string applicationFolder = {});
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

  void formLoaded(forms::Form& form) override;
  void formShown(forms::Form& form) override;
  void formHidden(forms::Form& form) override;
  void formUnloaded(forms::Form& form) override;
  void written(forms::Control& control, forms::Property property) override;
  void itemAdded(forms::Control& control, const std::string& item) override;
  void cleared(forms::Control& control) override;
  void nodeAdded(forms::TreeView& tree, const forms::Node& node) override;
  void nodeExpanded(forms::TreeView& tree, const forms::Node& node) override;
  void navigated(forms::WebBrowser& browser, const std::string& path) override;
  [[nodiscard]] std::int64_t windowHandle(const forms::Control& control) override;
  [[nodiscard]] std::string locationName(const forms::WebBrowser& browser) override;

 private:
  [[nodiscard]] ControlView* viewOf(const forms::Control& control) const;
  void place(FormWindow& window) const;
  void afterCall();

  ProgramCalls& calls_;
  motor::WidgetHandles& handles_;
  std::string applicationFolder_;
  std::optional<QSize> firstSize_;
  // A window belongs to its form's load; the toolkit may end it earlier, with the window that it lies in front of.
  std::map<const forms::Form*, QPointer<FormWindow>> windows_;
};

}  // namespace desktop
