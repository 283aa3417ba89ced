#include "hosts/windows/views/shape_view.h"

#include "hosts/screen/looks.h"
#include "hosts/screen/palette.h"
#include "hosts/windows/views/measures.h"

namespace windows {

using namespace screen::palette;

void PaintedView::sync(forms::Property property) {
  switch (property) {
    case forms::Property::Visible:
    case forms::Property::Left:
    case forms::Property::Top:
    case forms::Property::Width:
    case forms::Property::Height: {
      const RECT now = place();
      RECT both{};
      UnionRect(&both, &painted_, &now);
      painted_ = now;
      InvalidateRect(context().form, &both, FALSE);
      break;
    }
    default:
      break;
  }
}

RECT PaintedView::formRect() const {
  RECT rect{};
  GetClientRect(context().form, &rect);
  return rect;
}

ShapeView::ShapeView(forms::Shape& shape, ViewContext& context, HWND parent)
    : PaintedView(shape, context, parent), shape_(shape) {}

RECT ShapeView::place() const {
  RECT rect = scale().rectOf(shape_);
  if (screen::lookOf(shape_) == screen::ShapeLook::header) {
    rect.left = 0;
    rect.right = formRect().right;
  }
  return rect;
}

void ShapeView::paintOnForm(Canvas& canvas) const {
  if (!shape_.visible()) return;
  constexpr forms::Color kFaintLine = rgb(0x4A, 0x5D, 0x7A);
  switch (screen::lookOf(shape_)) {
    case screen::ShapeLook::stage:
      canvas.fill(place(), kPaper);
      break;
    case screen::ShapeLook::header:
      canvas.fill(place(), kNavy);
      break;
    case screen::ShapeLook::line:
      canvas.fill(place(), kFaintLine);
      break;
    case screen::ShapeLook::card:
      canvas.fillRound(place(), kRadius, kCard, kBorder);
      break;
  }
}

}  // namespace windows
