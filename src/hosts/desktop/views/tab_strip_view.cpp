#include "hosts/desktop/views/tab_strip_view.h"

#include <QSignalBlocker>

#include "hosts/desktop/views/tab_row.h"

namespace desktop {

TabStripView::TabStripView(forms::TabStrip& strip, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(strip, calls), strip_(strip) {
  auto* row = new TabRow(TabRow::Look::segments, strip.captions, parent);
  connect(row, &TabRow::picked, this, [this](int index) { act([this, index] { strip_.userPick(index); }); });
  adopt(row);
}

void TabStripView::sync(forms::Property property) {
  if (property != forms::Property::SelectedItem) return ControlView::sync(property);
  auto* row = qobject_cast<TabRow*>(widget());
  if (row == nullptr) return;
  const QSignalBlocker quiet(row);
  row->setCurrentIndex(strip_.selectedIndex());
}

}  // namespace desktop
