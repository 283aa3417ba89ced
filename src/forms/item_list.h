#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace forms {

struct ItemState {
  std::vector<std::string> items;
  int listIndex = -1;
  std::string text;
};

// What list boxes and combo boxes share: items, counted from 0, and the index of the one chosen, -1 for none.
class ItemList : public ControlWith<ItemState> {
 public:
  using ControlWith::ControlWith;

  [[nodiscard]] const std::vector<std::string>& items() const { return state_.items; }
  void addItem(const std::string& item);
  // Removes all items; nothing is chosen then. Raises nothing.
  void clear();

  [[nodiscard]] int listIndex() const { return state_.listIndex; }
  // Another index raises Click. Fails with 380 below -1 or beyond the last item.
  void setListIndex(int index);

  // The text of the item chosen, or what stands in the box.
  [[nodiscard]] const std::string& text() const { return state_.text; }
  [[nodiscard]] std::string describe(Property property) const override;

  Event<> Click;
  // The user picks an item: raises Click even when it is the one already chosen. Fails with 380 when there is none.
  void userPick(int index);

 protected:
  void checkIndex(int index, int lowest) const;
  void choose(int index);
};

class ListBox : public ItemList {
 public:
  using ItemList::ItemList;
};

}  // namespace forms
