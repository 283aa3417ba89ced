#include "hosts/desktop/views/list_box_view.h"

#include <QSignalBlocker>

#include "hosts/desktop/views/pick_list.h"

namespace desktop {

ListBoxView::ListBoxView(forms::ListBox& list, QWidget& parent, ProgramCalls& calls)
    : ControlView(list, calls), list_(list), rows_(new PickList(parent)) {
  connect(rows_, &PickList::picked, this, [this](int row) { act([this, row] { list_.userPick(row); }); });
  adopt(rows_);
  for (const std::string& item : list.items()) itemAdded(item);
}

void ListBoxView::sync(forms::Property property) {
  if (property != forms::Property::ListIndex) return ControlView::sync(property);
  const QSignalBlocker quiet(rows_);
  rows_->setCurrentRow(list_.listIndex());
}

void ListBoxView::itemAdded(const std::string& item) { rows_->addItem(QString::fromStdString(item)); }

void ListBoxView::cleared() { rows_->clear(); }

}  // namespace desktop
