#include "hosts/desktop/views/web_browser_view.h"

#include <QFile>
#include <QFileInfo>
#include <QTextBrowser>

#include "hosts/desktop/page_text.h"
#include "platform/paths.h"

namespace desktop {
namespace {

constexpr auto kMissingPage = "<h3>No se encuentra la página</h3><p>%1</p>";

// Pages are read here, since the toolkit takes every page for UTF-8.
class Page : public QTextBrowser {
 public:
  explicit Page(QWidget& parent) : QTextBrowser(&parent) { setOpenExternalLinks(false); }

  QVariant loadResource(int type, const QUrl& name) override {
    if (type != QTextDocument::HtmlResource) return QTextBrowser::loadResource(type, name);
    QFile file(name.toLocalFile());
    if (!file.open(QIODevice::ReadOnly)) {
      return QString::fromUtf8(kMissingPage).arg(QFileInfo(file).fileName().toHtmlEscaped());
    }
    return pageText(file.readAll());
  }
};

}  // namespace

WebBrowserView::WebBrowserView(forms::WebBrowser& browser, QWidget& parent, ProgramCalls& calls)
    : ControlView(browser, calls), browser_(browser), page_(new Page(parent)) {
  adopt(page_);
}

void WebBrowserView::navigated(const std::string& path) {
  const auto file = platform::machinePath(path);
  page_->setSource(QUrl::fromLocalFile(QString::fromStdString(file.string())), QTextDocument::HtmlResource);
}

QString WebBrowserView::locationName() const {
  const QString title = page_->documentTitle();
  return title.isEmpty() ? page_->source().fileName() : title;
}

}  // namespace desktop
