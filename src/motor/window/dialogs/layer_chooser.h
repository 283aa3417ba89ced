#pragma once

#include <QDialog>
#include <QListWidget>
#include <QPointer>

#include "motor/window/map_widget.h"

namespace motor {

// Asks which layer of a map is to be seen whole, or all of them.
class LayerChooser : public QDialog {
 public:
  explicit LayerChooser(MapWidget& map);

  [[nodiscard]] QListWidget& list() { return *list_; }
  void accept() override;

 private:
  QPointer<MapWidget> map_;
  QListWidget* list_;  // owned by the dialog
};

}  // namespace motor
