#include "hosts/windows/views/label_view.h"

#include "hosts/screen/palette.h"
#include "hosts/windows/drawing/text_fit.h"
#include "hosts/windows/views/measures.h"
#include "hosts/windows/win32/wide_text.h"
#include "text/utf8.h"

namespace windows {
namespace {

using namespace screen::palette;

constexpr double kEntryInset = 10;
constexpr double kMenuInset = 5;

struct Colors {
  forms::Color text, litText, light;
};

Colors colorsOf(screen::LabelLook look) {
  constexpr forms::Color kMenuLight = rgb(0x35, 0x49, 0x66);
  switch (look) {
    case screen::LabelLook::menu:
      return {kMenuText, kCard, kMenuLight};
    case screen::LabelLook::menuEntry:
      return {kInk, kNavy, kNavyTint};
    case screen::LabelLook::link:
    case screen::LabelLook::text:
      break;
  }
  return {kNavy, kAccent, kCard};
}

Across acrossOf(forms::Alignment alignment) {
  switch (alignment) {
    case forms::Alignment::right:
      return Across::right;
    case forms::Alignment::centre:
      return Across::centre;
    case forms::Alignment::left:
      break;
  }
  return Across::left;
}

}  // namespace

PlainLabelView::PlainLabelView(forms::Label& label, ViewContext& context, HWND parent)
    : ControlView(label, context, parent), label_(label) {
  create(WC_STATICW, SS_OWNERDRAW);
}

void PlainLabelView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property != forms::Property::Caption) return;
  SetWindowTextW(window(), wide(label_.caption()).c_str());
  repaint();
}

void PlainLabelView::paint(Canvas& canvas, UINT) const {
  canvas.fill(clientRect(), label_.backColor.value_or(behind()));
  drawFitted(canvas, wide(label_.caption()), clientRect(), label_.font, label_.foreColor.value_or(kInk),
             acrossOf(label_.alignment));
}

LinkLabelView::LinkLabelView(forms::Label& label, ViewContext& context, HWND parent)
    : PointedView(label, context, parent), label_(label), look_(screen::lookOf(label)) {
  createButton();
}

void LinkLabelView::sync(forms::Property property) {
  ControlView::sync(property);
  if (property == forms::Property::Caption) SetWindowTextW(window(), wide(text::trim(label_.caption())).c_str());
}

void LinkLabelView::click() {
  forms::Label& label = label_;
  act([&label] { label.userClick(); });
}

// A menu entry reaches down to the pop-up frame below it; its light stays a little inside.
RECT LinkLabelView::lightRect() const {
  RECT rect = clientRect();
  if (look_ == screen::LabelLook::menu) InflateRect(&rect, 0, -scale().of(kMenuInset));
  return rect;
}

void LinkLabelView::paint(Canvas& canvas, UINT state) const {
  const Colors colors = colorsOf(look_);
  const bool lit = isLit(state);
  canvas.fill(clientRect(), behind());
  if (lit && look_ != screen::LabelLook::link) canvas.fillRound(lightRect(), kRadius, colors.light);
  const bool entry = look_ == screen::LabelLook::menuEntry;
  RECT inside = clientRect();
  if (entry) InflateRect(&inside, -scale().of(kEntryInset), 0);
  const bool enabled = (state & ODS_DISABLED) == 0;
  drawFitted(canvas, wide(text::trim(label_.caption())), inside, label_.font,
             !enabled ? kMuted
             : lit    ? colors.litText
                      : colors.text,
             entry ? Across::left : Across::centre);
  if (hasRing(state)) canvas.drawRound(lightRect(), kRadius, kAccent, kFocusLine);
}

std::unique_ptr<ControlView> makeLabelView(forms::Label& label, ViewContext& context, HWND parent) {
  if (screen::lookOf(label) == screen::LabelLook::text) return std::make_unique<PlainLabelView>(label, context, parent);
  return std::make_unique<LinkLabelView>(label, context, parent);
}

}  // namespace windows
