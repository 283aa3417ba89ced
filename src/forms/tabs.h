#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace forms {

struct TabState {
  int tab = 0;
};

// A row of tabs without pages.
class TabStrip : public ControlWith<TabState> {
 public:
  using ControlWith::ControlWith;

  std::vector<std::string> captions;  // part of the definition

  [[nodiscard]] int selectedIndex() const { return state_.tab; }  // from 0
  [[nodiscard]] const std::string& selectedCaption() const;
  [[nodiscard]] std::string describe(Property property) const override;

  Event<> Click;
  // The user picks a tab: raises Click, also on the tab already selected. Fails with 380 when there is none.
  void userPick(int index);
};

// A tabbed dialog: tabs with a page each, which holds controls.
class TabControl : public ControlWith<TabState> {
 public:
  using ControlWith::ControlWith;

  std::vector<std::string> captions;  // part of the definition

  [[nodiscard]] int tab() const { return state_.tab; }  // from 0
  // Another tab raises Click with the tab that was left. Fails with 380 when there is no such tab.
  void setTab(int tab);
  [[nodiscard]] std::string describe(Property property) const override;
  [[nodiscard]] bool showsPage(int page) const override { return page == state_.tab; }

  Event<int> Click;
  // The user picks a tab; as setTab.
  void userPick(int tab);
};

}  // namespace forms
