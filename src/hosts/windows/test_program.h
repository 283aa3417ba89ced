#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/combo_box.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/shape.h"
#include "forms/text_box.h"
#include "hosts/windows/drawing/graphics_time.h"
#include "hosts/windows/message_loop.h"
#include "hosts/windows/windows_host.h"

namespace windows::testing {

// A small program on the screen: a working window and its selector, which note what happens to them.
class Program {
 public:
  using Words = std::vector<std::string>;

  class WorkingForm : public forms::Form {
   public:
    WorkingForm(forms::Listener& listener, Words& noted) : Form(listener, "frmPrincipal") {
      place(0, 0, 9000, 7500);
      button.setCaption("Ver");
      button.place(300, 300, 1500, 400);
      box.place(300, 900, 3000, 315);
      picture.place(300, 1500, 3000, 3000);
      endDefinition();
      button.Click.add([&noted] { noted.push_back("clic"); });
      box.Change.add([this, &noted] { noted.push_back("texto " + box.text()); });
      Unload.add([&noted] { noted.push_back("cierre"); });
    }
    forms::CommandButton button{*this, "BtnVer"};
    forms::TextBox box{*this, "txtBuscar"};
    forms::PictureBox picture{*this, "PictureMapa"};
  };

  class Selector : public forms::Form {
   public:
    explicit Selector(forms::Listener& listener) : Form(listener, "frmTematicos") {
      list.place(300, 300, 3000, 315);
      endDefinition();
    }
    forms::DropDownList list{*this, "CmbMarco"};
  };

  // The window shown first owns none: the selector may stand by itself.
  enum class First { workingWindow, selector };
  explicit Program(First first = First::workingWindow) {
    calls.failed = [this](const std::string& description) { noted.push_back("fallo " + description); };
    if (first == First::selector) selector.show();
    form.show();
    selector.show();
    settle();
  }

  // Handles the messages that wait.
  void settle() const { (void)runWaitingMessages(host); }
  // Handles messages, those of clocks too, until something is so or so many milliseconds are over. Whether it is so.
  [[nodiscard]] bool becomesSo(const std::function<bool()>& isSo, ULONGLONG milliseconds) const {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    while (!isSo() && GetTickCount64() < end) {
      settle();
      Sleep(10);
    }
    return isSo();
  }
  [[nodiscard]] Words take() { return std::exchange(noted, {}); }
  [[nodiscard]] HWND window(const forms::Control& control) const { return host.handleOf(control); }

 private:
  GraphicsTime graphics_;

 public:
  Words noted;
  screen::ProgramCalls calls;
  WindowsHost host{calls};
  WorkingForm form{host, noted};
  Selector selector{host};
};

}  // namespace windows::testing
