#include <algorithm>
#include <array>

#include "motor/session/attributes.h"
#include "motor/session/session_functions.h"
#include "motor/session/session_state.h"
#include "motor/session/style_text.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace motor {
namespace {

// A layer, and whether it is the cosmetic one.
struct LayerOfMap {
  const Layer& layer;
  bool isCosmetic;
};

using LayerAttribute = Attribute<SessionState, LayerOfMap>;

constexpr int kNormal = 0;
constexpr int kCosmetic = 1;
constexpr int kThematic = 3;

double inSessionUnits(const SessionState& session, double metres) {
  return metres / metresPerDistanceUnit(session.distanceUnit);
}

std::string fileOf(const SessionState& session, const Layer& layer) {
  for (const TableEntry& entry : session.tables.entries()) {
    if (entry.table == layer.table) return text::fromPath(entry.file);
  }
  return {};
}

// As written, or else the first column of texts.
std::string labelExpression(const Layer& layer) {
  if (!layer.label.expression.empty() || !layer.table) return layer.label.expression;
  const std::vector<Column>& columns = layer.table->columns();
  const auto text =
      std::find_if(columns.begin(), columns.end(), [](const Column& c) { return c.type == Column::Type::text; });
  if (text != columns.end()) return text->name;
  return columns.empty() ? std::string() : columns.front().name;
}

template <typename Style>
Value styleOr(const std::optional<Style>& style) {
  return styleText(style.value_or(Style{}));
}

int typeOf(const LayerOfMap& l) {
  if (l.isCosmetic) return kCosmetic;
  return l.layer.theme ? kThematic : kNormal;
}

constexpr std::array kAttributes{
    LayerAttribute{1, [](const SessionState&, const LayerOfMap& l) -> Value { return l.layer.name; }},
    LayerAttribute{2, [](const SessionState&, const LayerOfMap& l) -> Value { return l.layer.editable; }},
    LayerAttribute{3, [](const SessionState&, const LayerOfMap& l) -> Value { return l.layer.selectable; }},
    LayerAttribute{4, [](const SessionState&, const LayerOfMap& l) -> Value { return l.layer.zoomLayered; }},
    LayerAttribute{
        5, [](const SessionState& s, const LayerOfMap& l) -> Value { return inSessionUnits(s, l.layer.minZoom); }},
    LayerAttribute{
        6, [](const SessionState& s, const LayerOfMap& l) -> Value { return inSessionUnits(s, l.layer.maxZoom); }},
    LayerAttribute{7, [](const SessionState&, const LayerOfMap& l) -> Value { return l.isCosmetic; }},
    LayerAttribute{8, [](const SessionState& s, const LayerOfMap& l) -> Value { return fileOf(s, l.layer); }},
    LayerAttribute{9,
                   [](const SessionState&, const LayerOfMap& l) -> Value { return static_cast<int>(l.layer.display); }},
    LayerAttribute{10,
                   [](const SessionState&, const LayerOfMap& l) -> Value {
                     return styleOr(l.layer.line ? l.layer.line : l.layer.pen);
                   }},
    LayerAttribute{11, [](const SessionState&, const LayerOfMap& l) -> Value { return styleOr(l.layer.pen); }},
    LayerAttribute{12, [](const SessionState&, const LayerOfMap& l) -> Value { return styleOr(l.layer.brush); }},
    LayerAttribute{13, [](const SessionState&, const LayerOfMap& l) -> Value { return styleOr(l.layer.symbol); }},
    LayerAttribute{14, [](const SessionState&, const LayerOfMap& l) -> Value { return styleOr(l.layer.font); }},
    LayerAttribute{15, [](const SessionState&, const LayerOfMap& l) -> Value { return labelExpression(l.layer); }},
    LayerAttribute{
        16, [](const SessionState&, const LayerOfMap& l) -> Value { return static_cast<int>(l.layer.label.line); }},
    LayerAttribute{17, [](const SessionState&, const LayerOfMap&) -> Value { return false; }},
    LayerAttribute{18, [](const SessionState&, const LayerOfMap& l) -> Value { return styleText(l.layer.label.font); }},
    LayerAttribute{19, [](const SessionState&, const LayerOfMap& l) -> Value { return l.layer.label.parallel; }},
    LayerAttribute{20, [](const SessionState&, const LayerOfMap& l) -> Value { return l.layer.label.position; }},
    LayerAttribute{21, [](const SessionState&, const LayerOfMap& l) -> Value { return l.layer.arrows; }},
    LayerAttribute{22, [](const SessionState&, const LayerOfMap& l) -> Value { return l.layer.nodes; }},
    LayerAttribute{23, [](const SessionState&, const LayerOfMap& l) -> Value { return l.layer.centroids; }},
    LayerAttribute{24, [](const SessionState&, const LayerOfMap& l) -> Value { return typeOf(l); }},
    LayerAttribute{25,
                   [](const SessionState&, const LayerOfMap& l) -> Value {
                     return static_cast<int>(l.layer.label.visibility) + 1;
                   }},
};

// The layer of argument 1: a number, where 0 is the cosmetic layer, or a name.
LayerOfMap layerOfArgument(const Map& map, const Arguments& arguments) {
  if (arguments[1].number() != nullptr) {
    const int number = arguments.integer(1);
    if (number == 0) return {map.cosmetic, true};
    if (number < 0 || number > static_cast<int>(map.layers.size())) arguments.reject(1, "el mapa no tiene esa capa");
    return {map.layers[static_cast<std::size_t>(number - 1)], false};
  }
  const std::string name = arguments.text(1);
  if (text::equalsIgnoringCase(name, map.cosmetic.name)) return {map.cosmetic, true};
  for (const Layer& layer : map.layers) {
    if (text::equalsIgnoringCase(layer.name, name)) return {layer, false};
  }
  arguments.reject(1, "el mapa no tiene esa capa");
}

}  // namespace

Value layerInfo(SessionState& session, const Arguments& arguments) {
  const Map& map = session.window(arguments.integer(0)).map();
  return readAttribute(kAttributes, arguments, 2, session, layerOfArgument(map, arguments));
}

}  // namespace motor
