#pragma once

#include <QPainter>
#include <QString>
#include <optional>
#include <set>
#include <vector>

#include "motor/drawing/halo_text.h"
#include "motor/drawing/label_box.h"
#include "motor/drawing/label_texts.h"
#include "motor/drawing/map_view.h"
#include "motor/drawing/object_memory.h"
#include "motor/map/layer.h"

namespace motor {

// An object that may be labelled, with the row that gives the text.
struct LabelCandidate {
  ObjectPtr object;
  RowId row = 0;
  const EditedLabel* edited = nullptr;  // where it was put or changed by hand
  std::optional<Point> anchor;          // where it is not the engine's own choice, in the map's coordinates
  std::optional<Point> callout;         // where the line of a label ends that was moved, where it was given
  double clearance = 0;                 // pixels around the anchor that belong to a sign; the label goes below it
};

// Whether a layer has labels at this zoom.
[[nodiscard]] bool isLabelledAt(const Layer& layer, double zoomMetres);

// Writes the labels of a map, layer by layer from the most important one on. Labels lie whole in the picture; those of
// lines lie along them where their layer wants it. A label stays away if it would lie on one
// that is already there, unless its layer lets labels overlap; a text is written once a layer unless duplicates are
// wanted, and only so many as the layer may have. Labels that were put by hand come first and always stand.
class LabelPainter {
 public:
  LabelPainter(QPainter& painter, const MapView& view, ObjectMemory& objects, int level, LabelTexts& texts);

  // No label lies on these places, in pixels, but those that may overlap others.
  void keepOff(const std::vector<QRectF>& places) {
    for (const QRectF& place : places) taken_.emplace_back(place);
  }
  // The largest objects first.
  void paintLayer(const Layer& layer, std::vector<LabelCandidate> candidates);

 private:
  // Where a label hangs: a point of the picture, and the direction of its letters in degrees counter-clockwise.
  struct Anchor {
    QPointF at;
    double degrees = 0;
  };
  // Whether the label found a place, which then is the last of `taken_`.
  bool paintLabel(const Layer& layer, const LabelCandidate& candidate, const QString& text);
  // Of a label of that size; not finite when nothing of the object is seen.
  [[nodiscard]] Anchor anchorOf(const LabelCandidate& candidate, QSizeF label);
  [[nodiscard]] Anchor lineAnchor(const ObjectPtr& line, double width);
  // Where the label of a region goes in pixels: inside the part of it that is seen. Not finite when nothing is.
  [[nodiscard]] QPointF regionAnchor(const ObjectPtr& region, QSizeF label);
  [[nodiscard]] bool isFree(const LabelBox& box) const;

  QPainter& painter_;
  const MapView& view_;
  ObjectMemory& objects_;
  int level_;
  LabelTexts& texts_;
  std::vector<LabelBox> taken_;
};

}  // namespace motor
