#pragma once

#include <string>

#include "forms/form.h"
#include "forms/tree_view.h"

// What the windows of every host with a screen are to the models that they show.
namespace screen {

// A control as a host shows it.
class ControlDisplay {
 public:
  virtual ~ControlDisplay() = default;

  // Shows what the model now holds.
  virtual void sync(forms::Property property) = 0;
  // Shows everything that the model holds.
  void syncAll();
  // The page that holds the control may have changed.
  virtual void syncVisible() = 0;

  virtual void itemAdded(const std::string& /*item*/) {}
  virtual void cleared() {}
  virtual void nodeAdded(const forms::Node& /*node*/) {}
  virtual void nodeExpanded(const forms::Node& /*node*/) {}

  // True for what a user must see while a long handler runs: its writes are painted at once.
  [[nodiscard]] virtual bool paintsAtOnce() const { return false; }
  // Whether the model has turned to another page since the last sync.
  [[nodiscard]] virtual bool isBehind() const { return false; }
};

// A form as a host shows it.
class FormDisplay {
 public:
  // The form outlives its display.
  explicit FormDisplay(forms::Form& form) : form_(form) {}
  virtual ~FormDisplay() = default;

  [[nodiscard]] forms::Form& form() const { return form_; }
  // How a control is shown; null for one that is never seen.
  [[nodiscard]] virtual ControlDisplay* viewOf(const forms::Control& control) const = 0;

  // A property of the form itself, or of a control, was written.
  virtual void syncForm(forms::Property property) = 0;
  virtual void controlWritten(const forms::Control& control, forms::Property property) = 0;
  // Paints at once what a control shows, without an event loop.
  virtual void paintNow(const forms::Control& control, forms::Property written) = 0;
  virtual void markCurrentTool(const std::string& command) = 0;

  // Turns the pages that the model has turned.
  void turnPages();
  // Shows what the user's own action changed in the model.
  void syncChoices();

 protected:
  forms::Form& form_;
};

}  // namespace screen
