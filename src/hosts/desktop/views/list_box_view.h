#pragma once

#include "forms/item_list.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

class PickList;

// A list shows whole rows: it is a little higher than its control where that does not end with one.
class ListBoxView : public ControlView {
 public:
  ListBoxView(forms::ListBox& list, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;
  void itemAdded(const std::string& item) override;
  void cleared() override;

 private:
  void showWholeRows();

  forms::ListBox& list_;
  PickList* rows_;
};

}  // namespace desktop
