#pragma once

#include <QString>

#include "forms/web_browser.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

namespace pages {
class PageBrowser;
}

// Shows the pages of the study's tables.
class WebBrowserView : public ControlView {
 public:
  WebBrowserView(forms::WebBrowser& browser, QWidget& parent, screen::ProgramCalls& calls);
  // Shows a page of the application folder; nothing outside the folder is read for it.
  void navigate(const std::string& path, const std::string& applicationFolder);

  // The title of the page shown, else its file's name.
  [[nodiscard]] QString locationName() const;

 private:
  pages::PageBrowser* page_;
};

}  // namespace desktop
