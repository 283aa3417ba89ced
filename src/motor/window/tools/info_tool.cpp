#include "motor/window/tools/info_tool.h"

#include <algorithm>

#include "motor/map/projected_objects.h"
#include "text/spanish_number.h"

namespace motor {

namespace {

constexpr QPointF kPanelCorner(8, 8);
constexpr std::size_t kMostColumns = 14;
constexpr int kMostDecimals = 6;
constexpr qsizetype kLongest = 60;  // characters of a value

QString textOf(const Value& value) {
  const double* number = value.number();
  const std::string text = number != nullptr ? text::shortSpanishNumber(*number, kMostDecimals) : value.toText();
  const QString shown = QString::fromStdString(text).simplified();
  return shown.size() > kLongest ? shown.left(kLongest - 1) + QStringLiteral("…") : shown;
}

}  // namespace

void InfoTool::release(const Pointer& pointer) {
  gesture_.moveTo(pointer.at);
  if (!gesture_.end() || gesture_.isDrag()) return;
  const std::vector<Hit> hits = mapWindow()->pointedAt(toPoint(gesture_.from()));
  if (hits.empty()) {
    cancel();
  } else {
    show(hits.front());
  }
}

void InfoTool::show(const Hit& hit) {
  const Map& map = mapWindow()->map();
  const TablePtr& table = map.layers[hit.layer].table;
  const auto set = projectedObjects(table, map.coordinateSystem);
  const std::uint32_t index = set->indexOf(hit.row);
  const std::span<const RowId> rows = set->rowsOf(index);
  record_ = object_ == set->objects()[index] ? (record_ + 1) % rows.size() : 0;
  object_ = set->objects()[index];
  readings_.clear();
  const std::vector<Column>& columns = table->columns();
  for (std::size_t i = 0; i < std::min(columns.size(), kMostColumns); ++i) {
    readings_.push_back({QString::fromStdString(columns[i].name), textOf(table->value(rows[record_], i))});
  }
  hint_.clear();
  if (rows.size() > 1) {
    hint_ = QStringLiteral("Registro %1 de %2 · otro clic: el siguiente").arg(record_ + 1).arg(rows.size());
  }
  site().toolChanged();
}

bool InfoTool::cancel() {
  const bool wasThere = gesture_.end() || object_ != nullptr;
  object_ = nullptr;
  readings_.clear();
  hint_.clear();
  site().toolChanged();
  return wasThere;
}

void InfoTool::paint(QPainter& painter, const MapView&) const {
  paintReadings(painter, kPanelCorner, readings_, hint_);
}

}  // namespace motor
