#include "motor/window/dialogs/layer_name.h"

#include <algorithm>

namespace motor {

QString layerName(const Layer& layer) {
  constexpr QLatin1String kSnapshot("Query");
  const QString name = QString::fromStdString(layer.name);
  const QStringView number = QStringView(name).mid(kSnapshot.size());
  const bool isSnapshot = name.startsWith(kSnapshot, Qt::CaseInsensitive) && !number.isEmpty() &&
                          std::all_of(number.begin(), number.end(), [](QChar c) { return c.isDigit(); });
  return isSnapshot ? QStringLiteral("Selección") : name;
}

}  // namespace motor
