#include "forms/combo_box.h"

#include <algorithm>

#include "text/failure.h"
#include "text/utf8.h"

namespace forms {

void DropDownList::setText(const std::string& text) {
  const auto& all = items();
  const auto found = std::ranges::find_if(all, [&](const auto& item) { return text::equalsIgnoringCase(item, text); });
  if (found == all.end()) throw failures::readOnlyText();
  choose(static_cast<int>(found - all.begin()));
  tell(Property::Text);
  if (isLive()) Click.raise();
}

void EditableCombo::setText(const std::string& text) {
  const bool changes = text != state_.text;
  if (changes) state_.listIndex = -1;
  state_.text = text;
  tell(Property::Text);
  if (changes && isLive()) Change.raise();
}

void EditableCombo::userEdit(const std::string& text) {
  if (!enabled() || text == state_.text) return;
  state_.listIndex = -1;
  state_.text = text;
  Change.raise();
}

}  // namespace forms
