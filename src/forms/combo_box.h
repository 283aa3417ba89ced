#pragma once

#include "forms/item_list.h"

namespace forms {

// A drop-down list: only its items can be its text.
class DropDownList : public ItemList {
 public:
  using ItemList::ItemList;

  // Chooses the item that equals the text ignoring case and raises Click, also when it is the one already chosen.
  // Fails with 383 when there is none.
  void setText(const std::string& text);
};

// A drop-down combo whose text can be typed. Change is raised when it is typed into or its text is assigned something
// else; picking an item or setting ListIndex raises only Click.
class EditableCombo : public ItemList {
 public:
  using ItemList::ItemList;

  Event<> Change;
  // Assigns the text; another one raises Change, and no item is chosen any more.
  void setText(const std::string& text);
  // The user has edited the text into this.
  void userEdit(const std::string& text);
};

}  // namespace forms
