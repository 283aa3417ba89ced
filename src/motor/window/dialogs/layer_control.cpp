#include "motor/window/dialogs/layer_control.h"

#include <QHeaderView>
#include <QVBoxLayout>

#include "motor/window/dialogs/answer_buttons.h"
#include "motor/window/dialogs/layer_name.h"

namespace motor {

LayerControl::LayerControl(MapWidget& map) : QDialog(&map), map_(&map), table_(new QTableWidget(0, kLabelled + 1)) {
  setWindowTitle(QStringLiteral("Control de capas"));
  setAttribute(Qt::WA_DeleteOnClose);
  table_->setHorizontalHeaderLabels({QStringLiteral("Capa"), QStringLiteral("Visible"), QStringLiteral("Seleccionable"),
                                     QStringLiteral("Etiquetas")});
  table_->verticalHeader()->hide();
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setShowGrid(false);
  for (const Layer& layer : map.mapWindow()->map().layers) addRow(layer);
  table_->resizeColumnsToContents();
  table_->horizontalHeader()->setSectionResizeMode(kName, QHeaderView::Stretch);
  table_->setMinimumWidth(table_->horizontalHeader()->length() + 2 * table_->frameWidth() + 40);

  auto* all = new QVBoxLayout(this);
  all->addWidget(table_);
  all->addWidget(answerButtons(*this));
}

// A theme has objects and labels of its base only, so those switches are not its own.
void LayerControl::addRow(const Layer& layer) {
  const int row = table_->rowCount();
  table_->insertRow(row);
  auto* name = new QTableWidgetItem(layerName(layer));
  name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  table_->setItem(row, kName, name);
  const auto add = [&](Column column, bool on, bool isOwn) {
    auto* item = new QTableWidgetItem;
    item->setFlags(isOwn ? Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable : Qt::NoItemFlags);
    if (isOwn) item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    table_->setItem(row, column, item);
  };
  add(kShown, layer.display != Display::off, true);
  add(kSelectable, layer.selectable, !layer.theme);
  add(kLabelled, layer.label.automatic && layer.label.visibility != LabelSettings::Visibility::off, !layer.theme);
}

bool LayerControl::isOn(int row, Column column) const { return table_->item(row, column)->checkState() == Qt::Checked; }

void LayerControl::accept() {
  MapWindow* window = map_ ? map_->mapWindow() : nullptr;
  if (window != nullptr) {
    std::vector<LayerSwitches> switches;
    for (int row = 0; row < table_->rowCount(); ++row) {
      switches.push_back({isOn(row, kShown), isOn(row, kSelectable), isOn(row, kLabelled)});
    }
    window->layersSwitched(switches);
  }
  QDialog::accept();
}

}  // namespace motor
