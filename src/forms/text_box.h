#pragma once

#include "forms/control.h"

namespace forms {

struct TextState {
  std::string text;
};

// A box to type into. Change is raised whenever the text really changes, by hand or by program.
class TextBox : public ControlWith<TextState> {
 public:
  using ControlWith::ControlWith;

  bool locked = false;  // part of the definition: shows text, takes none

  [[nodiscard]] const std::string& text() const { return state_.text; }
  void setText(const std::string& text);
  [[nodiscard]] std::string describe(Property property) const override;

  Event<> Change;
  // The user has edited the text into this.
  void userEdit(const std::string& text);
};

}  // namespace forms
