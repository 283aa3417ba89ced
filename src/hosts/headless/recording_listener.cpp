#include "hosts/headless/recording_listener.h"

#include "forms/form.h"
#include "forms/tree_view.h"

namespace headless {
namespace {

bool isOwnBusiness(const forms::Control& control, forms::Property property) {
  using forms::Property;
  return &control == &control.form() &&
         (property == Property::Visible || property == Property::Width || property == Property::Height);
}

std::string described(const forms::Node& node) {
  std::string line = "node " + node.path() + " " + forms::quoted(node.text());
  if (node.style().bold) line += " bold";
  if (node.style().color) line += " color=" + std::to_string(*node.style().color);
  return line;
}

}  // namespace

void RecordingListener::formLoaded(forms::Form& form) {
  recorder_.perform("form " + form.name() + " load", [&] { inner_.formLoaded(form); });
}

void RecordingListener::formShown(forms::Form& form) {
  recorder_.perform("form " + form.name() + " show", [&] { inner_.formShown(form); });
}

void RecordingListener::formHidden(forms::Form& form) {
  recorder_.perform("form " + form.name() + " hide", [&] { inner_.formHidden(form); });
}

void RecordingListener::formUnloaded(forms::Form& form) {
  recorder_.perform("form " + form.name() + " unload", [&] { inner_.formUnloaded(form); });
}

void RecordingListener::written(forms::Control& control, forms::Property property) {
  if (isOwnBusiness(control, property)) {
    inner_.written(control, property);
    return;
  }
  recorder_.perform(
      "set " + control.name() + "." + std::string(forms::name(property)) + " " + control.describe(property),
      [&] { inner_.written(control, property); });
}

void RecordingListener::itemAdded(forms::Control& control, const std::string& item) {
  recorder_.perform("add " + control.name() + " " + forms::quoted(item), [&] { inner_.itemAdded(control, item); });
}

void RecordingListener::cleared(forms::Control& control) {
  recorder_.perform("clear " + control.name(), [&] { inner_.cleared(control); });
}

void RecordingListener::nodeAdded(forms::TreeView& tree, const forms::Node& node) {
  recorder_.perform(described(node), [&] { inner_.nodeAdded(tree, node); });
}

void RecordingListener::nodeExpanded(forms::TreeView& tree, const forms::Node& node) {
  recorder_.perform("nodeset " + node.path() + " Expanded " + (node.expanded() ? "True" : "False"),
                    [&] { inner_.nodeExpanded(tree, node); });
}

void RecordingListener::navigated(forms::WebBrowser& browser, const std::string& path) {
  recorder_.perform("navigate " + path, [&] { inner_.navigated(browser, path); });
}

std::int64_t RecordingListener::windowHandle(const forms::Control& control) {
  const std::int64_t handle = inner_.windowHandle(control);
  if (handle != 0) recorder_.transcript().nameHandle(handle, control.name());
  return handle;
}

std::string RecordingListener::locationName(const forms::WebBrowser& browser) { return inner_.locationName(browser); }

}  // namespace headless
