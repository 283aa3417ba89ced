#include "hosts/screen/displays.h"

namespace screen {

void ControlDisplay::syncAll() {
  using enum forms::Property;
  for (const auto property : {Left, Caption, Text, ListIndex, Value, Tab, SelectedItem, Enabled, Visible}) {
    sync(property);
  }
}

void FormDisplay::turnPages() {
  bool turned = false;
  for (const forms::Control* control : form_.controls()) {
    ControlDisplay* view = viewOf(*control);
    if (view == nullptr || !view->isBehind()) continue;
    view->sync(forms::Property::Tab);
    turned = true;
  }
  if (!turned) return;
  for (const forms::Control* control : form_.controls()) {
    ControlDisplay* view = viewOf(*control);
    if (view != nullptr && control->container() != nullptr) view->syncVisible();
  }
}

void FormDisplay::syncChoices() {
  turnPages();
  using enum forms::Property;
  for (const forms::Control* control : form_.controls()) {
    ControlDisplay* view = viewOf(*control);
    if (view == nullptr) continue;
    for (const auto property : {ListIndex, Value, SelectedItem, Tab}) view->sync(property);
  }
}

}  // namespace screen
