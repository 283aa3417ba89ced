#include "hosts/desktop/views/view_factory.h"

#include <array>

#include "hosts/desktop/views/combo_view.h"
#include "hosts/desktop/views/command_button_view.h"
#include "hosts/desktop/views/frame_view.h"
#include "hosts/desktop/views/image_view.h"
#include "hosts/desktop/views/label_view.h"
#include "hosts/desktop/views/list_box_view.h"
#include "hosts/desktop/views/option_view.h"
#include "hosts/desktop/views/picture_box_view.h"
#include "hosts/desktop/views/progress_bar_view.h"
#include "hosts/desktop/views/shape_view.h"
#include "hosts/desktop/views/tab_control_view.h"
#include "hosts/desktop/views/tab_strip_view.h"
#include "hosts/desktop/views/text_box_view.h"
#include "hosts/desktop/views/timer_view.h"
#include "hosts/desktop/views/tree_view_view.h"
#include "hosts/desktop/views/web_browser_view.h"

namespace desktop {
namespace {

using Maker = std::unique_ptr<ControlView> (*)(forms::Control&, QWidget&, screen::ProgramCalls&);

template <class Kind, class View>
std::unique_ptr<ControlView> make(forms::Control& control, QWidget& parent, screen::ProgramCalls& calls) {
  auto* kind = dynamic_cast<Kind*>(&control);
  if (kind == nullptr) return nullptr;
  return std::make_unique<View>(*kind, parent, calls);
}

std::unique_ptr<ControlView> makeTimer(forms::Control& control, QWidget&, screen::ProgramCalls& calls) {
  auto* timer = dynamic_cast<forms::Timer*>(&control);
  if (timer == nullptr) return nullptr;
  return std::make_unique<TimerView>(*timer, calls);
}

constexpr std::array<Maker, 17> kMakers{
    make<forms::Label, LabelView>,
    make<forms::CommandButton, CommandButtonView>,
    make<forms::Frame, FrameView>,
    make<forms::OptionButton, OptionView>,
    make<forms::TextBox, TextBoxView>,
    make<forms::DropDownList, ComboView>,
    make<forms::EditableCombo, ComboView>,
    make<forms::ListBox, ListBoxView>,
    make<forms::TreeView, TreeViewView>,
    make<forms::ProgressBar, ProgressBarView>,
    make<forms::TabStrip, TabStripView>,
    make<forms::TabControl, TabControlView>,
    make<forms::PictureBox, PictureBoxView>,
    make<forms::Image, ImageView>,
    make<forms::Shape, ShapeView>,
    make<forms::WebBrowser, WebBrowserView>,
    makeTimer,
};

}  // namespace

std::unique_ptr<ControlView> makeView(forms::Control& control, QWidget& parent, screen::ProgramCalls& calls) {
  for (const Maker maker : kMakers) {
    if (auto view = maker(control, parent, calls)) return view;
  }
  return nullptr;
}

}  // namespace desktop
