#include "hosts/windows/views/image_view.h"

#include <algorithm>

#include "hosts/screen/palette.h"
#include "hosts/windows/views/measures.h"
#include "hosts/windows/win32/wide_text.h"

namespace windows {
namespace {

using namespace screen::palette;

constexpr double kRounding = 5;
constexpr double kInset = 3;
constexpr double kFaint = 0.4;

}  // namespace

PictureView::PictureView(forms::Image& image, ViewContext& context, HWND parent)
    : PaintedView(image, context, parent), image_(image) {}

void PictureView::paintOnForm(Canvas& canvas) const {
  if (image_.visible()) canvas.picture(image_.picture, place());
}

ToolButtonView::ToolButtonView(forms::Image& image, ViewContext& context, HWND parent)
    : PointedView(image, context, parent), image_(image) {
  createButton();
  std::wstring toolTip = wide(image.toolTipText);
  SetWindowTextW(window(), toolTip.c_str());
  TOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = context.form;
  tool.uId = reinterpret_cast<UINT_PTR>(window());
  tool.lpszText = toolTip.data();
  SendMessageW(context.toolTips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolButtonView::setCurrentPicture(const std::string& picture) {
  const bool current = image_.picture == picture;
  if (current == current_) return;
  current_ = current;
  repaint();
}

void ToolButtonView::click() {
  forms::Image& image = image_;
  act([&image] { image.userClick(); });
}

void ToolButtonView::paint(Canvas& canvas, UINT state) const {
  const RECT box = clientRect();
  canvas.fill(box, behind());
  if ((state & ODS_SELECTED) != 0) {
    canvas.fillRound(box, kRounding, kBorder);
  } else if (current_) {
    canvas.fillRound(box, kRounding, kNavyTint, kNavy);
  } else if (isLit(state)) {
    canvas.fillRound(box, kRounding, kShade, kBorder);
  }
  const int side = std::min(scale().of(kLargestIcon), std::min(widthOf(box), heightOf(box)) - 2 * scale().of(kInset));
  const int left = (widthOf(box) - side) / 2;
  const int top = (heightOf(box) - side) / 2;
  const bool enabled = (state & ODS_DISABLED) == 0;
  canvas.picture(image_.picture, {left, top, left + side, top + side}, enabled ? 1 : kFaint);
  if (hasRing(state)) canvas.drawRound(box, kRounding, kAccent, kFocusLine);
}

std::unique_ptr<ControlView> makeImageView(forms::Image& image, ViewContext& context, HWND parent) {
  if (image.Click.hasHandlers()) return std::make_unique<ToolButtonView>(image, context, parent);
  return std::make_unique<PictureView>(image, context, parent);
}

}  // namespace windows
