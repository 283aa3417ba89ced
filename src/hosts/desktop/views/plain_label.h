#pragma once

#include <QLabel>

#include "forms/label.h"

namespace desktop {

// Text that is never clipped: it breaks, then shrinks, and is cut only as the last resort, with the whole text as tool
// tip.
class PlainLabel : public QLabel {
 public:
  PlainLabel(const forms::Label& label, QWidget& parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const forms::Label& label_;
};

}  // namespace desktop
