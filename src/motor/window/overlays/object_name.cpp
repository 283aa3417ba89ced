#include "motor/window/overlays/object_name.h"

#include "motor/session/map_layers.h"

namespace motor {

QString objectName(const Map& map, const Hit& object, LabelTexts& texts) {
  const Layer& layer = map.layers[baseIndexOf(map, object.layer)];
  std::string name;
  if (layer.label.expression.empty()) {
    for (const char* column : {"nombre", "name"}) {
      const auto found = layer.table->findColumn(column);
      if (!found) continue;
      name = layer.table->value(object.row, *found).toText();
      break;
    }
  }
  if (name.empty()) name = texts.of(layer, object.row);
  return QString::fromStdString(name).simplified();
}

}  // namespace motor
