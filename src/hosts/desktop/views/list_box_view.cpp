#include "hosts/desktop/views/list_box_view.h"

#include <QSignalBlocker>

#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/twips.h"
#include "hosts/desktop/views/pick_list.h"

namespace desktop {
namespace {

constexpr int kMargin = 4;  // pixels below the list, to the end of what holds it

}  // namespace

ListBoxView::ListBoxView(forms::ListBox& list, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(list, calls), list_(list), rows_(new PickList(parent)) {
  connect(rows_, &PickList::picked, this, [this](int row) { act([this, row] { list_.userPick(row); }); });
  adopt(rows_);
  for (const std::string& item : list.items()) itemAdded(item);
}

void ListBoxView::sync(forms::Property property) {
  if (property != forms::Property::ListIndex) {
    ControlView::sync(property);
    return showWholeRows();
  }
  const QSignalBlocker quiet(rows_);
  rows_->setCurrentRow(list_.listIndex());
}

void ListBoxView::showWholeRows() {
  const QRect place = pixelRect(list_);
  const int lowest = rows_->parentWidget()->height() - scaled(kMargin);
  int height = rows_->heightOfRows(rows_->rowsIn(place.height()));
  if (place.top() + height > lowest) height = rows_->heightOfRows(rows_->rowsIn(place.height()) - 1);
  if (height > 0) rows_->resize(place.width(), height);
}

void ListBoxView::itemAdded(const std::string& item) { rows_->addItem(QString::fromStdString(item)); }

void ListBoxView::cleared() { rows_->clear(); }

}  // namespace desktop
