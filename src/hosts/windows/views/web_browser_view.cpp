#include "hosts/windows/views/web_browser_view.h"

#include <algorithm>

#include "hosts/screen/palette.h"
#include "hosts/windows/views/pane_class.h"
#include "text/failure.h"

namespace windows {
namespace {

// Pages of files, and what they consist of; nothing is fetched from elsewhere.
bool isOfThisMachine(const std::wstring& address) {
  const auto begins = [&address](const wchar_t* with) {
    return CompareStringOrdinal(address.c_str(), std::min(lstrlenW(with), static_cast<int>(address.size())), with, -1,
                                TRUE) == CSTR_EQUAL;
  };
  const bool isPath = address.size() > 2 && address[1] == L':' && address[2] == L'\\';
  return isPath || begins(L"file:") || begins(L"about:") || begins(L"res:") || begins(L"\\\\");
}

std::string fileNameOf(const std::string& path) { return path.substr(path.find_last_of("\\/") + 1); }

}  // namespace

WebBrowserView::WebBrowserView(forms::WebBrowser& browser, ViewContext& context, HWND parent)
    : ControlView(browser, context, parent), browser_(browser) {
  create(paneClass(), WS_CLIPCHILDREN);
  try {
    page_ = std::make_unique<PageControl>(window(), isOfThisMachine);
  } catch (const Failure&) {
    // The place stays empty.
  }
}

void WebBrowserView::navigate(const std::string& path) const {
  if (page_ != nullptr) page_->navigate(path);
}

std::string WebBrowserView::locationName() const {
  std::string name;
  try {
    if (page_ != nullptr) name = page_->locationName();
  } catch (const Failure&) {
    name.clear();
  }
  return name.empty() ? fileNameOf(browser_.path()) : name;
}

bool WebBrowserView::translate(const MSG& message) const {
  return page_ != nullptr && IsChild(window(), message.hwnd) != FALSE && page_->translate(message);
}

void WebBrowserView::paint(Canvas& canvas, UINT) const { canvas.fill(clientRect(), screen::palette::kCard); }

std::optional<LRESULT> WebBrowserView::handle(UINT message, WPARAM wide, LPARAM large) {
  switch (message) {
    case WM_PAINT:
      return paintWindow();
    case WM_ERASEBKGND:
      return TRUE;
    case WM_SIZE:
      if (page_ != nullptr) page_->fit();
      break;
    default:
      break;
  }
  return ControlView::handle(message, wide, large);
}

}  // namespace windows
