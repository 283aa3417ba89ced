#pragma once

#include "forms/control.h"

namespace forms {

struct CaptionState {
  std::string caption;
};

// A control with a caption.
class Captioned : public ControlWith<CaptionState> {
 public:
  using ControlWith::ControlWith;

  [[nodiscard]] const std::string& caption() const { return state_.caption; }
  void setCaption(const std::string& caption);
  [[nodiscard]] std::string describe(Property property) const override;
};

enum class Alignment { left, right, centre };

class Label : public Captioned {
 public:
  using Captioned::Captioned;

  Alignment alignment = Alignment::left;  // part of the definition
  Event<> Click;
  void userClick();  // nothing while it is disabled
};

// A push button.
class CommandButton : public Captioned {
 public:
  using Captioned::Captioned;

  Event<> Click;
  void userClick();
};

// A frame: holds other controls.
class Frame : public Captioned {
 public:
  using Captioned::Captioned;
};

}  // namespace forms
