#include "forms/item_list.h"

#include "forms/form.h"
#include "text/failure.h"

namespace forms {

void ItemList::addItem(const std::string& item) {
  state_.items.push_back(item);
  if (isLive()) form().listener().itemAdded(*this, item);
}

void ItemList::clear() {
  state_ = {};
  if (isLive()) form().listener().cleared(*this);
}

void ItemList::setListIndex(int index) {
  checkIndex(index, -1);
  const bool changes = index != state_.listIndex;
  choose(index);
  tell(Property::ListIndex);
  if (changes && isLive()) Click.raise();
}

std::string ItemList::describe(Property property) const {
  if (property == Property::ListIndex) return std::to_string(state_.listIndex);
  if (property == Property::Text) return quoted(state_.text);
  return Control::describe(property);
}

void ItemList::userPick(int index) {
  checkIndex(index, 0);
  if (!enabled()) return;
  choose(index);
  Click.raise();
}

void ItemList::checkIndex(int index, int lowest) const {
  if (index < lowest || index >= static_cast<int>(state_.items.size())) throw failures::invalidPropertyValue();
}

void ItemList::choose(int index) {
  state_.listIndex = index;
  state_.text = index < 0 ? "" : state_.items[static_cast<std::size_t>(index)];
}

}  // namespace forms
