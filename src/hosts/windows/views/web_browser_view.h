#pragma once

#include <memory>

#include "forms/web_browser.h"
#include "hosts/windows/browser/page_control.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

// A page of the study in the system's browser control. Where that cannot be had, the place stays empty.
class WebBrowserView : public ControlView {
 public:
  WebBrowserView(forms::WebBrowser& browser, ViewContext& context, HWND parent);
  // Shows a page; throws Failure where the control refuses.
  void navigate(const std::string& path) const;
  // The name of the page shown, as the control gives it, else that of its file.
  [[nodiscard]] std::string locationName() const;
  // Lets the page hear of a key first; true when nobody else is to.
  [[nodiscard]] bool translate(const MSG& message) const;

 protected:
  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;
  void paint(Canvas& canvas, UINT state) const override;

 private:
  forms::WebBrowser& browser_;
  std::unique_ptr<PageControl> page_;
};

}  // namespace windows
