#pragma once

#include "forms/listener.h"
#include "hosts/screen/displays.h"
#include "hosts/screen/program_calls.h"

namespace screen {

// The part of a host that passes on what it hears of forms and controls to their displays.
class DisplayListener : public forms::Listener {
 public:
  // `calls` outlives the listener.
  explicit DisplayListener(ProgramCalls& calls) : calls_(calls) {}

  [[nodiscard]] ProgramCalls& calls() const { return calls_; }

  void written(forms::Control& control, forms::Property property) override;
  void itemAdded(forms::Control& control, const std::string& item) override;
  void cleared(forms::Control& control) override;
  void nodeAdded(forms::TreeView& tree, const forms::Node& node) override;
  void nodeExpanded(forms::TreeView& tree, const forms::Node& node) override;

 protected:
  // How a form is shown; null while it is not loaded.
  [[nodiscard]] virtual FormDisplay* displayOf(const forms::Form& form) const = 0;
  [[nodiscard]] ControlDisplay* viewOf(const forms::Control& control) const;

 private:
  ProgramCalls& calls_;
};

}  // namespace screen
