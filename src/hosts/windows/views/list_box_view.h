#pragma once

#include "forms/item_list.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

// A list that tells of every pick of the user's, also of the row already chosen.
class ListBoxView : public ControlView {
 public:
  ListBoxView(forms::ListBox& list, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;
  void itemAdded(const std::string& item) override;
  void cleared() override;
  void commanded(WORD code) override;

 protected:
  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;

 private:
  void pick();

  forms::ListBox& list_;
  bool told_ = true;  // of the row under the button that is pressed
};

}  // namespace windows
