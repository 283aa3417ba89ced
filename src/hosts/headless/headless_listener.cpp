#include "hosts/headless/headless_listener.h"

#include "forms/web_browser.h"
#include "hosts/headless/headless_files.h"

namespace headless {

std::string HeadlessListener::locationName(const forms::WebBrowser& browser) {
  return locationName_.value_or(lastName(browser.path()));
}

}  // namespace headless
