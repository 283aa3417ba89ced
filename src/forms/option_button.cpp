#include "forms/option_button.h"

#include "forms/form.h"

namespace forms {

void OptionButton::setValue(bool value) {
  const bool chooses = value && !option_.value;
  if (chooses) {
    for (Control* control : form().controls()) {
      auto* other = dynamic_cast<OptionButton*>(control);
      const bool isSibling = other != nullptr && other != this && other->container() == container();
      if (isSibling && other->option_.value) {
        other->option_.value = false;
        other->tell(Property::Value);
      }
    }
  }
  option_.value = value;
  tell(Property::Value);
  if (chooses && isLive()) Click.raise();
}

std::string OptionButton::describe(Property property) const {
  return property == Property::Value ? (option_.value ? "True" : "False") : Captioned::describe(property);
}

void OptionButton::keepAsStored() {
  Captioned::keepAsStored();
  storedOption_ = option_;
}

void OptionButton::restoreStored() {
  Captioned::restoreStored();
  option_ = storedOption_;
}

void OptionButton::userRelease() {
  if (!enabled()) return;
  setValue(true);
  MouseUp.raise();
}

}  // namespace forms
