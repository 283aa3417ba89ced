#include "hosts/windows/views/view_factory.h"

#include <array>

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

using Maker = std::unique_ptr<ControlView> (*)(forms::Control&, ViewContext&, HWND);

template <class Kind, class View>
std::unique_ptr<ControlView> make(forms::Control& control, ViewContext& context, HWND parent) {
  auto* kind = dynamic_cast<Kind*>(&control);
  return kind == nullptr ? nullptr : std::make_unique<View>(*kind, context, parent);
}

// For kinds that look different from control to control.
template <class Kind, std::unique_ptr<ControlView> (*maker)(Kind&, ViewContext&, HWND)>
std::unique_ptr<ControlView> choose(forms::Control& control, ViewContext& context, HWND parent) {
  auto* kind = dynamic_cast<Kind*>(&control);
  return kind == nullptr ? nullptr : maker(*kind, context, parent);
}

constexpr std::array<Maker, 17> kMakers{
    choose<forms::Label, makeLabelView>,
    choose<forms::Image, makeImageView>,
    choose<forms::TextBox, makeTextBoxView>,
    make<forms::CommandButton, CommandButtonView>,
    make<forms::Frame, FrameView>,
    make<forms::OptionButton, OptionView>,
    make<forms::DropDownList, ComboView>,
    make<forms::EditableCombo, ComboView>,
    make<forms::ListBox, ListBoxView>,
    make<forms::TreeView, TreeViewView>,
    make<forms::ProgressBar, ProgressBarView>,
    make<forms::TabStrip, TabStripView>,
    make<forms::TabControl, TabControlView>,
    make<forms::PictureBox, PictureBoxView>,
    make<forms::Shape, ShapeView>,
    make<forms::WebBrowser, WebBrowserView>,
    make<forms::Timer, TimerView>,
};

}  // namespace

std::unique_ptr<ControlView> makeView(forms::Control& control, ViewContext& context, HWND parent) {
  for (const Maker maker : kMakers) {
    if (auto view = maker(control, context, parent)) return view;
  }
  return nullptr;
}

}  // namespace windows
