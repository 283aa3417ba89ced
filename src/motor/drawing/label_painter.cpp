#include "motor/drawing/label_painter.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <limits>

#include "motor/drawing/callouts.h"
#include "motor/drawing/clipping.h"
#include "motor/drawing/fonts.h"
#include "motor/drawing/label_point.h"
#include "motor/drawing/line_place.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/shape_painter.h"
#include "motor/drawing/turns.h"
#include "motor/drawing/wrapped_text.h"

namespace motor {

namespace {

constexpr double kGap = 2;             // pixels between two labels
constexpr double kBorderGap = 4;       // pixels between a label and its region's outline, where there is room
constexpr double kPointGap = 5;        // pixels between a point and its label
constexpr double kEdge = 3;            // pixels between a label and the picture's edge
constexpr double kMostShift = 0.3;     // of its width, that a region's label is moved to keep off the edge
constexpr double kMostRise = 0.6;      // of its height
constexpr double kCornerGap = 0.7;     // of the gap to a point, for labels at its corners
constexpr int kLargestSymbol = 240;    // points
constexpr double kPixelPrecision = 1;  // of a label's place in a region that is seen in part
constexpr double kWidestLabel = 0.8;   // of the picture's width, of one that must be broken
constexpr int kCentre = 0;

// Where the label lies from its anchor by its position number, in halves of its size: 0 CC, 1 TL, 2 TC, 3 TR, 4 CL, 5
// CR, 6 BL, 7 BC, 8 BR.
constexpr double kPositions[][2] = {{0, 0}, {-1, -1}, {0, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {0, 1}, {1, 1}};
// The other places of a point's label, the best first.
constexpr int kPointPositions[] = {3, 8, 1, 6, 5, 4, 2, 7};
constexpr int kSignPositions[] = {7, 2};  // of a label on an object with a theme's sign: below it, above it

double area(const Box& box) { return (box.maxX - box.minX) * (box.maxY - box.minY); }

// A long text in two lines, broken at the blank nearest to its middle.
QStringList folded(const QString& text) {
  qsizetype best = -1;
  for (qsizetype i = text.indexOf(' '); i >= 0; i = text.indexOf(' ', i + 1)) {
    if (best < 0 || std::abs(2 * i - text.size()) < std::abs(2 * best - text.size())) best = i;
  }
  if (best < 0) return {text};
  return {text.left(best), text.mid(best + 1)};
}

// In two lines where that lets it keep within its region, in more where it would be wider than the picture.
HaloText layOut(const Font& font, const QString& text, double room, double picture) {
  const QStringList lines = text.split('\n');
  HaloText label(lines, font);
  if (lines.size() == 1 && label.size().width() > room) label = HaloText(folded(text), font);
  if (label.size().width() <= picture) return label;
  const double most = std::max(1.0, picture * kWidestLabel);
  return HaloText(wrappedText(text, QFontMetricsF(toQFont(font)), most, most), font);
}

// Whole pixels keep upright letters sharp.
void paintTurned(QPainter& painter, const HaloText& label, const QRectF& box, QPointF pivot, double degrees) {
  if (degrees == 0) return label.paint(painter, box.topLeft() + pivot, Qt::AlignHCenter);
  painter.save();
  painter.translate(pivot);
  painter.rotate(-degrees);
  label.paint(painter, box.topLeft(), Qt::AlignHCenter);
  painter.restore();
}

// A layer's label settings as a label that was changed by hand has them.
LabelSettings settingsOf(const Layer& layer, const EditedLabel* edited) {
  LabelSettings settings = layer.label;
  if (edited == nullptr) return settings;
  settings.overlap = true;
  settings.font = edited->font.value_or(settings.font);
  settings.position = edited->position.value_or(settings.position);
  settings.offset = edited->offset.value_or(settings.offset);
  return settings;
}

// Where a label may lie, the best place first.
std::vector<int> positionsOf(const LabelSettings& settings, bool isPoint, bool hasSign) {
  if (hasSign) return {std::begin(kSignPositions), std::end(kSignPositions)};
  std::vector<int> positions{std::clamp(settings.position, 0, 8)};
  if (!isPoint) return positions;
  if (positions.front() == kCentre) positions.front() = kPointPositions[0];
  positions.insert(positions.end(), std::begin(kPointPositions), std::end(kPointPositions));
  return positions;
}

// By how much a box must be moved at least to lie in the picture.
QPointF wayInto(const QRectF& picture, const QRectF& box) {
  const QRectF room = picture.adjusted(kEdge, kEdge, -kEdge, -kEdge);
  QRectF moved = box;
  if (moved.right() > room.right()) moved.moveRight(room.right());
  if (moved.bottom() > room.bottom()) moved.moveBottom(room.bottom());
  if (moved.left() < room.left()) moved.moveLeft(room.left());
  if (moved.top() < room.top()) moved.moveTop(room.top());
  return moved.topLeft() - box.topLeft();
}

// How far a label may be moved from its place to lie in the picture.
QSizeF mostShift(MapObject::Kind kind, QSizeF label) {
  if (kind == MapObject::Kind::region) return {label.width() * kMostShift, label.height() * kMostRise};
  if (kind == MapObject::Kind::polyline) return {label.height(), label.height()};
  return {0, 0};
}

// How far a label keeps from its anchor: off the sign or the symbol that stands there.
double gapOf(const LabelSettings& settings, const LabelCandidate& candidate, const Layer& layer) {
  double least = 0;
  if (candidate.object->kind == MapObject::Kind::point) {
    const double symbol = std::min(styleIn(layer, *candidate.object).symbol.size, kLargestSymbol) * kPixelsPerPoint;
    least = std::max(kPointGap, symbol / 2 + 1);
  }
  return candidate.clearance + std::max(settings.offset * kPixelsPerPoint, least);
}

// The box of a label at a position around its anchor, relative to it.
QRectF boxAt(int position, QSizeF size, double gap, bool isPoint) {
  const double* side = kPositions[position];
  const bool isCorner = side[0] != 0 && side[1] != 0;
  const double away = isPoint && isCorner ? gap * kCornerGap : gap;
  const QPointF centre(side[0] * (size.width() / 2 + away),
                       side[1] * (size.height() / 2 + (isCorner && isPoint ? 0 : away)));
  return {centre - QPointF(size.width() / 2, size.height() / 2), size};
}

}  // namespace

bool isLabelledAt(const Layer& layer, double zoomMetres) {
  const LabelSettings& label = layer.label;
  const bool isOff = label.visibility == LabelSettings::Visibility::off || (!label.automatic && label.edited.empty());
  if (isOff || layer.theme || !layer.isDrawnAt(zoomMetres)) return false;
  return label.visibility == LabelSettings::Visibility::on ||
         (zoomMetres >= label.minZoom && zoomMetres <= label.maxZoom);
}

LabelPainter::LabelPainter(QPainter& painter, const MapView& view, ObjectMemory& objects, int level, LabelTexts& texts)
    : painter_(painter), view_(view), objects_(objects), level_(level), texts_(texts) {}

bool LabelPainter::isFree(const LabelBox& box) const {
  return std::none_of(taken_.begin(), taken_.end(), [&](const LabelBox& other) { return other.intersects(box); });
}

QPointF LabelPainter::regionAnchor(const ObjectPtr& region, QSizeF label) {
  const std::vector<QPolygonF> rings = pixelParts(*region, objects_.paths.of(region, level_), view_);
  const QSizeF room = label.isEmpty() ? label : label + QSizeF(2 * kBorderGap, 0);
  if (view_.rect().contains(view_.toPixels(region->bounds))) {
    return roomForLabel(rings, view_.toPixel(objects_.labelPoints.of(region)), room);
  }
  std::vector<QPolygonF> seen;
  for (const QPolygonF& ring : rings) {
    if (QPolygonF inside = clippedRing(ring, view_.rect()); inside.size() > 3) seen.push_back(std::move(inside));
  }
  if (seen.empty()) return {std::numeric_limits<double>::quiet_NaN(), 0};
  return roomForLabel(seen, labelPoint(seen, kPixelPrecision), room);
}

LabelPainter::Anchor LabelPainter::lineAnchor(const ObjectPtr& line, double width) {
  const QRectF room = view_.rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
  const auto place = linePlace(pixelParts(*line, objects_.paths.of(line, level_), view_), room, width);
  if (!place) return {{std::numeric_limits<double>::quiet_NaN(), 0}, 0};
  return {place->at, place->degrees};
}

LabelPainter::Anchor LabelPainter::anchorOf(const LabelCandidate& candidate, QSizeF label) {
  if (candidate.anchor) return {view_.toPixel(*candidate.anchor), 0};
  switch (candidate.object->kind) {
    case MapObject::Kind::region:
      return {regionAnchor(candidate.object, label), 0};
    case MapObject::Kind::polyline:
      return lineAnchor(candidate.object, label.width());
    default:
      return {view_.toPixel(candidate.object->points.front()), 0};
  }
}

void LabelPainter::paintLayer(const Layer& layer, std::vector<LabelCandidate> candidates) {
  std::stable_sort(candidates.begin(), candidates.end(), [](const LabelCandidate& a, const LabelCandidate& b) {
    if ((a.edited == nullptr) != (b.edited == nullptr)) return a.edited != nullptr;
    return area(a.object->bounds) > area(b.object->bounds);
  });
  std::set<QString> written;
  int left = layer.label.maximum.value_or(std::numeric_limits<int>::max());
  for (const LabelCandidate& candidate : candidates) {
    if (left <= 0 && candidate.edited == nullptr) break;
    const MapObject& object = *candidate.object;
    if (object.kind == MapObject::Kind::text || object.points.empty()) continue;
    const bool hasOwnText = candidate.edited != nullptr && candidate.edited->text;
    const std::string source = hasOwnText ? *candidate.edited->text : texts_.of(layer, candidate.row);
    const QString text = QString::fromStdString(source).trimmed();
    if (text.isEmpty()) continue;
    if (candidate.edited == nullptr && !layer.label.duplicates && written.contains(text)) continue;
    if (!paintLabel(layer, candidate, text)) continue;
    --left;
    written.insert(text);
    if (candidate.edited != nullptr && candidate.anchor) {
      LabelCandidate unmoved = candidate;
      unmoved.anchor = candidate.callout;
      paintCallout(painter_, layer, *candidate.edited, taken_.back().bounds(), anchorOf(unmoved, {0, 0}).at);
    }
  }
}

bool LabelPainter::paintLabel(const Layer& layer, const LabelCandidate& candidate, const QString& text) {
  const LabelSettings settings = settingsOf(layer, candidate.edited);
  const MapObject& object = *candidate.object;
  const bool isRegion = object.kind == MapObject::Kind::region;
  const double room = isRegion ? view_.toPixels(object.bounds).width() : std::numeric_limits<double>::max();
  const HaloText label = layOut(settings.font, text, room, view_.rect().width() - 2 * kEdge);
  const QSizeF size = label.size();
  const bool needsRoom = isRegion ? settings.position == kCentre : settings.parallel;
  Anchor anchor = anchorOf(candidate, needsRoom ? size : QSizeF(0, 0));
  if (!view_.rect().contains(anchor.at)) return false;
  if (!settings.parallel) anchor.degrees = 0;
  if (candidate.edited != nullptr && candidate.edited->angle != 0) anchor.degrees = turnOf(candidate.edited->angle);
  const bool isPoint = object.kind == MapObject::Kind::point;
  const double gap = gapOf(settings, candidate, layer);
  const auto tryPositions = [&](QSizeF mayMove) {
    for (const int position : positionsOf(settings, isPoint, candidate.clearance > 0)) {
      const QRectF own = boxAt(position, size, gap, isPoint);
      const QPointF way = wayInto(view_.rect(), LabelBox(own, anchor.at, anchor.degrees).bounds());
      if (std::abs(way.x()) > mayMove.width() || std::abs(way.y()) > mayMove.height()) continue;
      const QPointF pivot = anchor.at + way;
      if (!settings.overlap && !isFree(LabelBox(own.adjusted(-kGap, -kGap, kGap, kGap), pivot, anchor.degrees)))
        continue;
      paintTurned(painter_, label, own, pivot, anchor.degrees);
      taken_.emplace_back(own, pivot, anchor.degrees);
      return true;
    }
    return false;
  };
  // The place of a point's label follows from the point; only where no place is whole in the picture is one moved.
  if (tryPositions(mostShift(object.kind, size))) return true;
  return (isPoint || candidate.edited != nullptr) && tryPositions(view_.rect().size());
}

}  // namespace motor
