#include "hosts/headless/headless_listener.h"

#include "forms/form.h"
#include "forms/web_browser.h"
#include "hosts/headless/headless_files.h"

namespace headless {

// A form has windows as long as it is loaded.
std::int64_t HeadlessListener::windowHandle(const forms::Control& control) {
  return control.form().isLoaded() ? windows_.handleOf(control) : 0;
}

std::string HeadlessListener::locationName(const forms::WebBrowser& browser) {
  return locationName_.value_or(lastName(browser.path()));
}

}  // namespace headless
