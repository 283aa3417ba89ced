#pragma once

#include <QDialog>
#include <QPointer>
#include <QTableWidget>
#include <vector>

#include "motor/window/map_widget.h"

namespace motor {

// The layers of a map from the top down: which are displayed, which can be selected and which label their objects by
// themselves. The map changes when the dialog is accepted.
class LayerControl : public QDialog {
 public:
  explicit LayerControl(MapWidget& map);

  // A row a layer; the columns are the name and the three switches.
  enum Column : int { kName, kShown, kSelectable, kLabelled };
  [[nodiscard]] QTableWidget& table() { return *table_; }
  void accept() override;

 private:
  void addRow(const Layer& layer);
  [[nodiscard]] bool isOn(int row, Column column) const;

  QPointer<MapWidget> map_;
  QTableWidget* table_;  // owned by the dialog
};

}  // namespace motor
