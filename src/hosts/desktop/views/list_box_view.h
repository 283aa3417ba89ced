#pragma once

#include "forms/item_list.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

class PickList;

class ListBoxView : public ControlView {
 public:
  ListBoxView(forms::ListBox& list, QWidget& parent, ProgramCalls& calls);
  void sync(forms::Property property) override;
  void itemAdded(const std::string& item) override;
  void cleared() override;

 private:
  forms::ListBox& list_;
  PickList* rows_;
};

}  // namespace desktop
