#include "motor/session/layer_settings.h"

#include <algorithm>
#include <limits>

#include "motor/session/session_state.h"

namespace motor {
namespace {

// Replaces what is to change, leaves what was left out.
template <typename To, typename From>
void put(To& to, const std::optional<From>& from) {
  if (from) to = *from;
}

double metres(const ExpressionPtr& length, const std::string& unit, const std::string& distanceUnit,
              const SessionState& session) {
  const std::string& lengthUnit = unit.empty() ? distanceUnit : unit;
  return session.number(length) * metresPerDistanceUnit(lengthUnit);
}

RowId rowOf(const ExpressionPtr& expression, const SessionState& session) {
  const double row = session.number(expression);
  if (!(row >= 1 && row <= std::numeric_limits<RowId>::max()))
    throw LanguageError(expression->position(), Value(row).toText(), "se esperaba un número de fila");
  return static_cast<RowId>(row);
}

Display displayOf(LayerDisplay display) {
  switch (display) {
    case LayerDisplay::off:
      return Display::off;
    case LayerDisplay::graphic:
      return Display::graphic;
    case LayerDisplay::global:
      return Display::global;
    case LayerDisplay::value:
      return Display::value;
  }
  return Display::graphic;
}

LabelSettings::Visibility visibilityOf(LabelClause::Visibility visibility) {
  return static_cast<LabelSettings::Visibility>(visibility);
}

void changeEditedLabel(Layer& layer, const CustomLabel& custom, const SessionState& session) {
  const RowId row = rowOf(custom.row, session);
  std::vector<EditedLabel>& labels = layer.label.edited;
  auto label = std::find_if(labels.begin(), labels.end(), [row](const EditedLabel& l) { return l.row == row; });
  if (label == labels.end()) {
    labels.emplace_back().row = row;
    label = std::prev(labels.end());
  }
  put(label->visible, custom.visible);
  put(label->position, custom.placement);
  if (custom.text) label->text = session.text(custom.text);
  put(label->line, custom.line);
  if (custom.pen) label->pen = evaluatePen(*custom.pen, session.scope);
  if (layer.table) {
    const Transformation toTable(session.coordinateSystem, layer.table->coordinateSystem());
    if (custom.anchor) label->anchor = toTable(session.point(*custom.anchor));
    if (custom.callout) label->callout = toTable(session.point(*custom.callout));
  }
  if (custom.font) label->font = evaluateFont(*custom.font, session.scope);
  if (custom.offset) label->offset = session.integer(custom.offset);
  if (custom.angle) label->angle = session.number(custom.angle);
}

void changeLabels(Layer& layer, const LabelClause& clause, const std::string& distanceUnit,
                  const SessionState& session) {
  LabelSettings& label = layer.label;
  if (clause.toDefault) label.edited.clear();
  if (clause.with) label.expression = clause.with->text;
  if (clause.font) label.font = evaluateFont(*clause.font, session.scope);
  if (clause.offset) label.offset = session.integer(clause.offset);
  if (clause.pen) label.pen = evaluatePen(*clause.pen, session.scope);
  put(label.line, clause.line);
  if (clause.visibility) label.visibility = visibilityOf(*clause.visibility);
  if (clause.visibilityZoom) {
    label.minZoom = metres(clause.visibilityZoom->minimum, clause.visibilityZoom->unit, distanceUnit, session);
    label.maxZoom = metres(clause.visibilityZoom->maximum, clause.visibilityZoom->unit, distanceUnit, session);
  }
  put(label.position, clause.placement);
  put(label.parallel, clause.parallel);
  put(label.automatic, clause.automatic);
  put(label.overlap, clause.overlap);
  put(label.duplicates, clause.duplicates);
  if (clause.saysMaximum) {
    label.maximum = clause.maximum ? std::optional(session.integer(clause.maximum)) : std::nullopt;
  }
  for (const CustomLabel& custom : clause.objects) changeEditedLabel(layer, custom, session);
}

void changeStyles(Layer& layer, const StyleList& list, const SessionState& session) {
  const Styles styles = evaluate(list, session.scope);
  put(layer.pen, styles.pen);
  put(layer.line, styles.line);
  put(layer.brush, styles.brush);
  put(layer.symbol, styles.symbol);
  put(layer.font, styles.font);
}

}  // namespace

void change(Layer& layer, const LayerChange& change, const std::string& distanceUnit, const SessionState& session) {
  if (change.display) layer.display = displayOf(*change.display);
  changeStyles(layer, change.global, session);
  if (change.zoom) {
    layer.minZoom = metres(change.zoom->minimum, change.zoom->unit, distanceUnit, session);
    layer.maxZoom = metres(change.zoom->maximum, change.zoom->unit, distanceUnit, session);
    layer.zoomLayered = change.zoom->on.value_or(true);
  }
  put(layer.editable, change.editable);
  put(layer.arrows, change.arrows);
  put(layer.nodes, change.nodes);
  put(layer.centroids, change.centroids);
  if (layer.theme) return;
  put(layer.selectable, change.selectable);
  if (change.label) changeLabels(layer, *change.label, distanceUnit, session);
}

}  // namespace motor
