#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "motor/language/statements/layer_change.h"
#include "motor/language/statements/legend.h"
#include "motor/language/statements/shade.h"
#include "motor/language/styles.h"
#include "motor/tables/table.h"

namespace motor {

// How a layer is shown: not at all, in the objects' own styles, in one override style, or by a theme's values.
enum class Display { off, graphic, global, value };

// A label of one object that was put or changed by hand. What is not given is as in the layer's settings.
struct EditedLabel {
  RowId row = 0;
  bool visible = true;
  std::optional<std::string> text;
  std::optional<Point> anchor;  // in the table's coordinate system; none: the object's centroid
  std::optional<int> position;  // as LabelSettings::position
  std::optional<Font> font;
  std::optional<int> offset;  // points
  double angle = 0;           // degrees
  // The line to its object that a label has which was moved away from it.
  std::optional<LabelLine> line;
  std::optional<Pen> pen;
  std::optional<Point> callout;  // where it ends, in the table's coordinate system; none: the object's own label place
};

struct LabelSettings {
  enum class Visibility { off, zoom, on };
  Visibility visibility = Visibility::on;
  bool automatic = false;  // Auto On: every object is labelled
  std::string expression;  // as written; empty is the table's first text column
  Font font;
  double minZoom = 0;  // metres, with Visibility::zoom
  double maxZoom = 0;
  int position = 0;                  // 0 CC, 1 TL, 2 TC, 3 TR, 4 CL, 5 CR, 6 BL, 7 BC, 8 BR
  int offset = 0;                    // points
  LabelLine line = LabelLine::none;  // of labels that were moved by hand
  Pen pen;                           // of that line
  bool parallel = true;
  bool overlap = false;
  bool duplicates = false;
  std::optional<int> maximum;       // of the layer's labels; none: no limit
  std::vector<EditedLabel> edited;  // at most one a row
};

// One layer of a map: a table and how it is drawn.
struct Layer {
  std::string name;  // the table's name in the session; "Cosmetic1" for the cosmetic layer
  TablePtr table;
  Display display = Display::graphic;
  bool selectable = true;
  bool editable = false;
  bool zoomLayered = false;  // drawn only while minZoom <= zoom <= maxZoom
  double minZoom = 0;        // metres
  double maxZoom = 0;
  // The override style of Display::global; what is not given comes from the object.
  std::optional<Pen> pen;  // of regions' borders and, without `line`, of lines
  std::optional<Pen> line;
  std::optional<Brush> brush;
  std::optional<Symbol> symbol;
  std::optional<Font> font;
  LabelSettings label;
  bool arrows = false;  // line directions, nodes and centroids are marked
  bool nodes = false;
  bool centroids = false;
  // Of a theme layer, which shades the objects of the layer right below it (or below further themes of the same table).
  std::shared_ptr<const Shade> theme;
  std::shared_ptr<const LegendLayer> legend;  // how the theme shows in the legend; null: as the engine chooses

  [[nodiscard]] bool isDrawnAt(double zoomMetres) const {
    return display != Display::off && (!zoomLayered || (zoomMetres >= minZoom && zoomMetres <= maxZoom));
  }
};

}  // namespace motor
