#include "motor/window/dialogs/layer_chooser.h"

#include <QLabel>
#include <QVBoxLayout>

#include "motor/window/dialogs/answer_buttons.h"
#include "motor/window/dialogs/layer_name.h"

namespace motor {

namespace {

constexpr int kAllLayers = -1;

}  // namespace

// A theme's objects are those of its base, which is in the list; a layer that is not displayed shows nothing.
LayerChooser::LayerChooser(MapWidget& map) : QDialog(&map), map_(&map), list_(new QListWidget) {
  setWindowTitle(QStringLiteral("Ver toda la capa"));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* question = new QLabel(QStringLiteral("&Capa que se quiere ver completa:"));
  question->setBuddy(list_);
  const auto add = [&](const QString& name, int layer) {
    auto* item = new QListWidgetItem(name, list_);
    item->setData(Qt::UserRole, layer);
  };
  add(QStringLiteral("Todas las capas"), kAllLayers);
  list_->ensurePolished();  // a style's own height of a line is known before there are lines
  const std::vector<Layer>& layers = map.mapWindow()->map().layers;
  for (std::size_t i = 0; i < layers.size(); ++i) {
    if (layers[i].theme || layers[i].display == Display::off) continue;
    add(layerName(layers[i]), static_cast<int>(i));
  }
  list_->setCurrentRow(0);
  connect(list_, &QListWidget::itemDoubleClicked, this, [this] { accept(); });

  auto* all = new QVBoxLayout(this);
  all->addWidget(question);
  all->addWidget(list_);
  all->addWidget(answerButtons(*this));
}

void LayerChooser::accept() {
  MapWindow* window = map_ ? map_->mapWindow() : nullptr;
  const QListWidgetItem* chosen = list_->currentItem();
  if (window != nullptr && chosen != nullptr) {
    const int layer = chosen->data(Qt::UserRole).toInt();
    layer == kAllLayers ? window->shownEntire() : window->shownEntire(static_cast<std::size_t>(layer));
  }
  QDialog::accept();
}

}  // namespace motor
