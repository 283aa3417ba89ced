#pragma once

#include "forms/label.h"

namespace forms {

struct OptionState {
  bool value = false;
};

// One of several choices in a container: choosing one leaves the others.
class OptionButton : public Captioned {
 public:
  using Captioned::Captioned;

  [[nodiscard]] bool value() const { return option_.value; }
  // True leaves the other option buttons of its container and, when it was not chosen before, raises Click.
  void setValue(bool value);
  [[nodiscard]] std::string describe(Property property) const override;
  void keepAsStored() override;
  void restoreStored() override;

  Event<> Click;
  Event<> MouseUp;
  // The user presses and releases the mouse button (or the key that stands for it) on it: chooses it, then raises
  // MouseUp.
  void userRelease();

 private:
  OptionState option_;
  OptionState storedOption_;
};

}  // namespace forms
