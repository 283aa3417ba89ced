#include "hosts/windows/views/view_factory.h"

#include <array>

#include "hosts/screen/view_makers.h"
#include "hosts/windows/views/combo_view.h"
#include "hosts/windows/views/command_button_view.h"
#include "hosts/windows/views/frame_view.h"
#include "hosts/windows/views/image_view.h"
#include "hosts/windows/views/label_view.h"
#include "hosts/windows/views/list_box_view.h"
#include "hosts/windows/views/option_view.h"
#include "hosts/windows/views/picture_box_view.h"
#include "hosts/windows/views/progress_bar_view.h"
#include "hosts/windows/views/shape_view.h"
#include "hosts/windows/views/tab_control_view.h"
#include "hosts/windows/views/text_box_view.h"
#include "hosts/windows/views/timer_view.h"
#include "hosts/windows/views/tree_view_view.h"
#include "hosts/windows/views/web_browser_view.h"

namespace windows {
namespace {

using Views = screen::ViewMakers<ControlView, ViewContext&, HWND>;

constexpr std::array<Views::Maker, 17> kMakers{
    Views::makeChosen<forms::Label, makeLabelView>,
    Views::makeChosen<forms::Image, makeImageView>,
    Views::makeChosen<forms::TextBox, makeTextBoxView>,
    Views::make<forms::CommandButton, CommandButtonView>,
    Views::make<forms::Frame, FrameView>,
    Views::make<forms::OptionButton, OptionView>,
    Views::make<forms::DropDownList, ComboView>,
    Views::make<forms::EditableCombo, ComboView>,
    Views::make<forms::ListBox, ListBoxView>,
    Views::make<forms::TreeView, TreeViewView>,
    Views::make<forms::ProgressBar, ProgressBarView>,
    Views::make<forms::TabStrip, TabStripView>,
    Views::make<forms::TabControl, TabControlView>,
    Views::make<forms::PictureBox, PictureBoxView>,
    Views::make<forms::Shape, ShapeView>,
    Views::make<forms::WebBrowser, WebBrowserView>,
    Views::make<forms::Timer, TimerView>,
};

}  // namespace

std::unique_ptr<ControlView> makeView(forms::Control& control, ViewContext& context, HWND parent) {
  return Views::makeFirst(kMakers, control, context, parent);
}

}  // namespace windows
