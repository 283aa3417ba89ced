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
#include "hosts/screen/view_makers.h"

namespace desktop {
namespace {

using Views = screen::ViewMakers<ControlView, QWidget&, screen::ProgramCalls&>;

std::unique_ptr<ControlView> makeTimerView(forms::Timer& timer, QWidget&, screen::ProgramCalls& calls) {
  return std::make_unique<TimerView>(timer, calls);
}

constexpr std::array<Views::Maker, 17> kMakers{
    Views::make<forms::Label, LabelView>,           Views::make<forms::CommandButton, CommandButtonView>,
    Views::make<forms::Frame, FrameView>,           Views::make<forms::OptionButton, OptionView>,
    Views::make<forms::TextBox, TextBoxView>,       Views::make<forms::DropDownList, ComboView>,
    Views::make<forms::EditableCombo, ComboView>,   Views::make<forms::ListBox, ListBoxView>,
    Views::make<forms::TreeView, TreeViewView>,     Views::make<forms::ProgressBar, ProgressBarView>,
    Views::make<forms::TabStrip, TabStripView>,     Views::make<forms::TabControl, TabControlView>,
    Views::make<forms::PictureBox, PictureBoxView>, Views::make<forms::Image, ImageView>,
    Views::make<forms::Shape, ShapeView>,           Views::make<forms::WebBrowser, WebBrowserView>,
    Views::makeChosen<forms::Timer, makeTimerView>,
};

}  // namespace

std::unique_ptr<ControlView> makeView(forms::Control& control, QWidget& parent, screen::ProgramCalls& calls) {
  return Views::makeFirst(kMakers, control, parent, calls);
}

}  // namespace desktop
