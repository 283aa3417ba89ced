#pragma once

#include "forms/control.h"

namespace forms {

struct ProgressState {
  float value = 0;
};

// From 0 to 100.
class ProgressBar : public ControlWith<ProgressState> {
 public:
  using ControlWith::ControlWith;

  [[nodiscard]] float value() const { return state_.value; }
  // Fails with 380 outside 0 to 100.
  void setValue(float value);
  [[nodiscard]] std::string describe(Property property) const override;
};

}  // namespace forms
