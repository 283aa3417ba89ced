#include "hosts/desktop/views/tab_control_view.h"

#include <QSignalBlocker>

#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/twips.h"
#include "hosts/desktop/views/tab_pages.h"
#include "hosts/desktop/views/tab_row.h"

namespace desktop {
namespace {

// The card reaches a little below its control, so that what fills the page has a margin there as it has at its sides.
constexpr int kSkirt = 12;

}  // namespace

TabControlView::TabControlView(forms::TabControl& tabs, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(tabs, calls), tabs_(tabs) {
  auto* pages = new TabPages(tabs.captions, parent);
  row_ = pages->row();
  connect(row_, &TabRow::picked, this, [this](int tab) { act([this, tab] { tabs_.userPick(tab); }); });
  adopt(pages);
  watch(row_);
  row_->setFont(pages->font());
  row_->setAccessibleName(accessibleName(tabs));
}

void TabControlView::sync(forms::Property property) {
  if (property != forms::Property::Tab) {
    ControlView::sync(property);
    if (widget() != nullptr) widget()->resize(widget()->width(), pixelRect(tabs_).height() + scaled(kSkirt));
    return;
  }
  const QSignalBlocker quiet(row_);
  shownTab_ = tabs_.tab();
  row_->setCurrentIndex(shownTab_);
}

}  // namespace desktop
