#include "forms/label.h"

namespace forms {

void Captioned::setCaption(const std::string& caption) {
  state_.caption = caption;
  tell(Property::Caption);
}

std::string Captioned::describe(Property property) const {
  return property == Property::Caption ? quoted(state_.caption) : Control::describe(property);
}

void Label::userClick() {
  if (enabled()) Click.raise();
}

void CommandButton::userClick() {
  if (enabled()) Click.raise();
}

}  // namespace forms
