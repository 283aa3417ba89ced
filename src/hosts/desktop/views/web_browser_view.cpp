#include "hosts/desktop/views/web_browser_view.h"

#include "hosts/desktop/pages/page_browser.h"
#include "platform/paths.h"

namespace desktop {

WebBrowserView::WebBrowserView(forms::WebBrowser& browser, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(browser, calls), page_(new pages::PageBrowser(&parent)) {
  adopt(page_);
}

void WebBrowserView::navigate(const std::string& path, const std::string& applicationFolder) {
  page_->openPage(QString::fromStdString(platform::machinePath(path).string()),
                  pages::StudyFolder(QString::fromStdString(applicationFolder)));
}

QString WebBrowserView::locationName() const { return page_->pageName(); }

}  // namespace desktop
