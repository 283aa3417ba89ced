#include "hosts/screen/display_listener.h"

#include "forms/label.h"
#include "hosts/screen/looks.h"

namespace screen {

ControlDisplay* DisplayListener::viewOf(const forms::Control& control) const {
  const FormDisplay* form = displayOf(control.form());
  return form == nullptr ? nullptr : form->viewOf(control);
}

void DisplayListener::written(forms::Control& control, forms::Property property) {
  FormDisplay* form = displayOf(control.form());
  if (form == nullptr) return;
  if (&control == &control.form()) return form->syncForm(property);
  form->turnPages();
  ControlDisplay* view = form->viewOf(control);
  if (view == nullptr) return;
  view->sync(property);
  form->controlWritten(control, property);
  const auto* label = dynamic_cast<const forms::Label*>(&control);
  const bool namesTool = property == forms::Property::Caption && control.name() == kCommandLabel;
  if (label != nullptr && namesTool) form->markCurrentTool(label->caption());
  if (calls_.isBusy() && view->paintsAtOnce()) form->paintNow(control, property);
}

void DisplayListener::itemAdded(forms::Control& control, const std::string& item) {
  if (ControlDisplay* view = viewOf(control)) view->itemAdded(item);
}

void DisplayListener::cleared(forms::Control& control) {
  if (ControlDisplay* view = viewOf(control)) view->cleared();
}

void DisplayListener::nodeAdded(forms::TreeView& tree, const forms::Node& node) {
  if (ControlDisplay* view = viewOf(tree)) view->nodeAdded(node);
}

void DisplayListener::nodeExpanded(forms::TreeView& tree, const forms::Node& node) {
  if (ControlDisplay* view = viewOf(tree)) view->nodeExpanded(node);
}

}  // namespace screen
