#include "motor/window/parent_filler.h"

#include <QEvent>

namespace motor {

ParentFiller::ParentFiller(QWidget& child) : child_(child) {
  child.installEventFilter(this);
  watchParent();
}

void ParentFiller::watchParent() {
  if (parent_ != nullptr) parent_->removeEventFilter(this);
  parent_ = child_.parentWidget();
  if (parent_ != nullptr) parent_->installEventFilter(this);
  fill();
}

void ParentFiller::fill() {
  if (parent_ != nullptr) child_.setGeometry(parent_->rect());
}

bool ParentFiller::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &child_ && event->type() == QEvent::ParentChange) watchParent();
  if (watched == parent_ && event->type() == QEvent::Resize) fill();
  return false;
}

}  // namespace motor
