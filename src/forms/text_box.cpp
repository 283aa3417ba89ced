#include "forms/text_box.h"

namespace forms {

void TextBox::setText(const std::string& text) {
  const bool changes = text != state_.text;
  state_.text = text;
  tell(Property::Text);
  if (changes && isLive()) Change.raise();
}

std::string TextBox::describe(Property property) const {
  return property == Property::Text ? quoted(state_.text) : Control::describe(property);
}

void TextBox::userEdit(const std::string& text) {
  if (!enabled() || locked || text == state_.text) return;
  state_.text = text;
  Change.raise();
}

}  // namespace forms
