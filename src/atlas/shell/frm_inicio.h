#pragma once

#include "forms/form.h"
#include "forms/image.h"
#include "forms/timer.h"

namespace atlas {

class Atlas;

// The splash. It hands over to the main window after 2.5 seconds, or at once at a double-click.
class FrmInicio : public forms::Form {
 public:
  // The atlas and the listener outlive the window.
  FrmInicio(Atlas& atlas, forms::Listener& listener);

  forms::Image Image1{*this, "Image1"};  // covers the window
  forms::Timer Timer1{*this, "Timer1"};

 private:
  void Form_DblClick();
  void Timer1_Timer();

  Atlas& atlas_;
};

}  // namespace atlas
