#include "forms/progress_bar.h"

#include "text/failure.h"
#include "text/number_text.h"

namespace forms {

void ProgressBar::setValue(float value) {
  if (!(value >= 0 && value <= 100)) throw failures::invalidPropertyValue();
  state_.value = value;
  tell(Property::Value);
}

std::string ProgressBar::describe(Property property) const {
  return property == Property::Value ? text::number(static_cast<double>(state_.value)) : Control::describe(property);
}

}  // namespace forms
