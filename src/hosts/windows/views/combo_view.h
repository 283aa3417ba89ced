#pragma once

#include "forms/combo_box.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

// A drop-down list, or a combo that can be typed into. The program hears of an item when its choice is made: in an open
// list that is when the list closes, and of the item already chosen when it is picked again.
class ComboView : public ControlView {
 public:
  ComboView(forms::ItemList& list, ViewContext& context, HWND parent);
  void sync(forms::Property property) override;
  void rescale() override;
  [[nodiscard]] bool isOpen() const;
  void itemAdded(const std::string& item) override;
  void cleared() override;
  void commanded(WORD code) override;

 protected:
  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;

 private:
  [[nodiscard]] int selection() const;
  [[nodiscard]] bool isChosenAgain() const;
  void showChoice();
  void fitHeight();
  void widenFor(const std::wstring& text);
  void pickSoon();
  void pick();
  void edited();

  forms::ItemList& list_;
  forms::EditableCombo* editable_;
  bool picking_ = false;  // a pick waits to be told
};

}  // namespace windows
