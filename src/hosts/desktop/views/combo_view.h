#pragma once

#include "forms/combo_box.h"
#include "hosts/desktop/views/control_view.h"

class QComboBox;

namespace desktop {

// A drop-down list, or a combo that can be typed into.
class ComboView : public ControlView {
 public:
  ComboView(forms::ItemList& list, QWidget& parent, screen::ProgramCalls& calls);
  void sync(forms::Property property) override;
  void itemAdded(const std::string& item) override;
  void cleared() override;

 private:
  void showChoice();

  forms::ItemList& list_;
  QComboBox* combo_;
};

}  // namespace desktop
