#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "forms/tree_view.h"
#include "forms/web_browser.h"

// For tests of the event rules: a listener that writes down what it hears.
namespace forms::testing {

class Log : public Listener {
 public:
  std::vector<std::string> lines;

  // What was heard since the last call.
  std::vector<std::string> take() { return std::exchange(lines, {}); }

  void formLoaded(Form& form) override { lines.push_back("load " + form.name()); }
  void formShown(Form& form) override { lines.push_back("show " + form.name()); }
  void formHidden(Form& form) override { lines.push_back("hide " + form.name()); }
  void formUnloaded(Form& form) override { lines.push_back("unload " + form.name()); }
  void written(Control& control, Property property) override {
    lines.push_back(control.name() + "." + std::string(forms::name(property)) + "=" + control.describe(property));
  }
  void itemAdded(Control& control, const std::string& item) override {
    lines.push_back("add " + control.name() + " " + item);
  }
  void cleared(Control& control) override { lines.push_back("clear " + control.name()); }
  void nodeAdded(TreeView&, const Node& node) override { lines.push_back("node " + node.path() + " " + node.text()); }
  void nodeExpanded(TreeView&, const Node& node) override { lines.push_back("expanded " + node.path()); }
  void navigated(WebBrowser&, const std::string& path) override { lines.push_back("navigate " + path); }
  std::int64_t windowHandle(const Control& control) override {
    return static_cast<std::int64_t>(control.name().size());
  }
  std::string locationName(const WebBrowser&) override { return "Página"; }
};

// A form whose controls are declared by the test.
class OpenForm : public Form {
 public:
  explicit OpenForm(Listener& listener) : Form(listener, "frmPrueba") {}
  using Form::endDefinition;
};

}  // namespace forms::testing
