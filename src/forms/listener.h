#pragma once

#include <cstdint>
#include <string>

#include "forms/property.h"

namespace forms {

class Control;
class Form;
class Node;
class TreeView;
class WebBrowser;

// What a host hears of the forms, each thing once and after it has happened in the model. Every write of a property is
// told, changed or not.
class Listener {
 public:
  virtual ~Listener() = default;

  virtual void formLoaded(
      Form& form) = 0;  // before the form's Load handler runs; its controls hold their stored values
  virtual void formShown(Form& form) = 0;
  virtual void formHidden(Form& form) = 0;
  virtual void formUnloaded(Form& form) = 0;  // after the form's Unload handler has run

  virtual void written(Control& control, Property property) = 0;

  virtual void itemAdded(Control& control, const std::string& item) = 0;
  virtual void cleared(Control& control) = 0;  // a list or a tree
  virtual void nodeAdded(TreeView& tree, const Node& node) = 0;
  virtual void nodeExpanded(TreeView& tree, const Node& node) = 0;  // Expanded was written
  virtual void navigated(WebBrowser& browser, const std::string& path) = 0;

  // The native window of a form or control, as a token of the host; 0 when there is none.
  [[nodiscard]] virtual std::int64_t windowHandle(const Control& control) = 0;
  // The name of the page shown: its title, else its file name.
  [[nodiscard]] virtual std::string locationName(const WebBrowser& browser) = 0;
};

}  // namespace forms
