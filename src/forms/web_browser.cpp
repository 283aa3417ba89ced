#include "forms/web_browser.h"

#include "forms/form.h"

namespace forms {

void WebBrowser::navigate(const std::string& path) {
  state_.path = path;
  form().listener().navigated(*this, path);
}

std::string WebBrowser::locationName() const { return form().listener().locationName(*this); }

}  // namespace forms
