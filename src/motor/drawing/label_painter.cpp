#include "motor/drawing/label_painter.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "motor/drawing/clipping.h"
#include "motor/drawing/label_point.h"
#include "motor/drawing/pens.h"
#include "motor/drawing/shape_painter.h"

namespace motor {

namespace {

constexpr double kGap = 2;               // pixels between two labels
constexpr double kPointGap = 5;          // pixels between a point and its label
constexpr double kEdge = 3;              // pixels between a label and the picture's edge
constexpr double kMostShift = 0.3;       // of its width, that a region's label is moved to keep off the edge
constexpr double kPixelPrecision = 1;    // of a label's place in a region that is seen in part
constexpr double kShareOfRegion = 0.02;  // precision of a label's place, as a part of the region's size
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

HaloText layOut(const Font& font, const QString& text, double room) {
  const QStringList lines = text.split('\n');
  HaloText label(lines, font);
  if (lines.size() == 1 && label.size().width() > room) label = HaloText(folded(text), font);
  return label;
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

Point middleOfLine(const MapObject& line) {
  double length = 0;
  const auto forSegments = [&](auto visit) {
    for (std::size_t part = 0; part < line.partCount(); ++part) {
      for (std::size_t i = line.parts[part] + 1; i < line.partEnd(part); ++i) {
        const Point a = line.points[i - 1];
        const Point b = line.points[i];
        if (!visit(a, b, std::hypot(b.x - a.x, b.y - a.y))) return;
      }
    }
  };
  forSegments([&](Point, Point, double segment) {
    length += segment;
    return true;
  });
  Point middle = line.points.empty() ? Point{} : line.points.front();
  double left = length / 2;
  forSegments([&](Point a, Point b, double segment) {
    if (segment > 0 && left <= segment) {
      middle = {a.x + (b.x - a.x) * left / segment, a.y + (b.y - a.y) * left / segment};
      return false;
    }
    left -= segment;
    return true;
  });
  return middle;
}

// A box moved as little as needed to lie in the picture.
QRectF movedInto(const QRectF& picture, QRectF box) {
  const QRectF room = picture.adjusted(kEdge, kEdge, -kEdge, -kEdge);
  if (box.right() > room.right()) box.moveRight(room.right());
  if (box.bottom() > room.bottom()) box.moveBottom(room.bottom());
  if (box.left() < room.left()) box.moveLeft(room.left());
  if (box.top() < room.top()) box.moveTop(room.top());
  return box;
}

}  // namespace

Point LabelPoints::of(const ObjectPtr& region) {
  Entry& entry = points_[region.get()];
  if (entry.object.lock() != region) {
    const MapObject& object = *region;
    std::vector<QPolygonF> rings;
    for (std::size_t part = 0; part < object.partCount(); ++part) {
      QPolygonF ring;
      for (std::size_t i = object.parts[part]; i < object.partEnd(part); ++i) {
        ring.append({object.points[i].x, object.points[i].y});
      }
      rings.push_back(std::move(ring));
    }
    const double size = std::min(object.bounds.maxX - object.bounds.minX, object.bounds.maxY - object.bounds.minY);
    const QPointF best = labelPoint(rings, size * kShareOfRegion);
    entry = {region, {best.x(), best.y()}};
  }
  return entry.point;
}

void LabelPoints::dropUnused() {
  std::erase_if(points_, [](const auto& entry) { return entry.second.object.expired(); });
}

bool isLabelledAt(const Layer& layer, double zoomMetres) {
  const LabelSettings& label = layer.label;
  const bool isOff = label.visibility == LabelSettings::Visibility::off || (!label.automatic && label.edited.empty());
  if (isOff || layer.theme || !layer.isDrawnAt(zoomMetres)) return false;
  return label.visibility == LabelSettings::Visibility::on ||
         (zoomMetres >= label.minZoom && zoomMetres <= label.maxZoom);
}

LabelPainter::LabelPainter(QPainter& painter, const MapView& view, SimplifiedPaths& paths, int level, LabelTexts& texts,
                           LabelPoints& points)
    : painter_(painter), view_(view), paths_(paths), level_(level), texts_(texts), points_(points) {}

bool LabelPainter::isFree(const QRectF& box) const {
  return std::none_of(taken_.begin(), taken_.end(), [&](const QRectF& other) { return other.intersects(box); });
}

QPointF LabelPainter::regionAnchor(const ObjectPtr& region) {
  if (view_.rect().contains(view_.toPixels(region->bounds))) return view_.toPixel(points_.of(region));
  std::vector<QPolygonF> seen;
  for (const QPolygonF& ring : pixelParts(*region, paths_.of(region, level_), view_)) {
    if (QPolygonF inside = clippedRing(ring, view_.rect()); inside.size() > 3) seen.push_back(std::move(inside));
  }
  if (seen.empty()) return {std::numeric_limits<double>::quiet_NaN(), 0};
  return labelPoint(seen, kPixelPrecision);
}

QPointF LabelPainter::anchorOf(const LabelCandidate& candidate) {
  if (candidate.anchor) return view_.toPixel(*candidate.anchor);
  switch (candidate.object->kind) {
    case MapObject::Kind::region:
      return regionAnchor(candidate.object);
    case MapObject::Kind::polyline:
      return view_.toPixel(middleOfLine(*candidate.object));
    default:
      return view_.toPixel(candidate.object->points.front());
  }
}

void LabelPainter::paintLayer(const Layer& layer, std::vector<LabelCandidate> candidates) {
  std::stable_sort(candidates.begin(), candidates.end(), [](const LabelCandidate& a, const LabelCandidate& b) {
    if ((a.edited == nullptr) != (b.edited == nullptr)) return a.edited != nullptr;
    return area(a.object->bounds) > area(b.object->bounds);
  });
  std::set<QString> written;
  for (const LabelCandidate& candidate : candidates) {
    const MapObject& object = *candidate.object;
    if (object.kind == MapObject::Kind::text || object.points.empty()) continue;
    const bool hasOwnText = candidate.edited != nullptr && candidate.edited->text;
    const std::string source = hasOwnText ? *candidate.edited->text : texts_.of(layer, candidate.row);
    const QString text = QString::fromStdString(source).trimmed();
    if (text.isEmpty()) continue;
    if (candidate.edited == nullptr && !layer.label.duplicates && written.contains(text)) continue;
    const QPointF anchor = anchorOf(candidate);
    if (!view_.rect().contains(anchor)) continue;
    if (paintLabel(settingsOf(layer, candidate.edited), candidate, text, anchor)) written.insert(text);
  }
}

bool LabelPainter::paintLabel(const LabelSettings& settings, const LabelCandidate& candidate, const QString& text,
                              QPointF anchor) {
  const MapObject& object = *candidate.object;
  const bool isRegion = object.kind == MapObject::Kind::region;
  const double room = isRegion ? view_.toPixels(object.bounds).width() : std::numeric_limits<double>::max();
  const HaloText label = layOut(settings.font, text, room);
  const QSizeF size = label.size();
  const bool isPoint = object.kind == MapObject::Kind::point;
  const std::vector<int> positions = positionsOf(settings, isPoint, candidate.clearance > 0);
  const double gap = candidate.clearance + std::max(settings.offset * kPixelsPerPoint, isPoint ? kPointGap : 0);
  for (const int position : positions) {
    const double* side = kPositions[position];
    const QPointF centre = anchor + QPointF(side[0] * (size.width() / 2 + gap), side[1] * (size.height() / 2 + gap));
    const QRectF wanted(centre - QPointF(size.width() / 2, size.height() / 2), size);
    const QRectF box = movedInto(view_.rect(), wanted);
    if (isRegion && std::abs(box.x() - wanted.x()) > size.width() * kMostShift) continue;
    if (!settings.overlap && !isFree(box.adjusted(-kGap, -kGap, kGap, kGap))) continue;
    label.paint(painter_, box.topLeft(), Qt::AlignHCenter);
    taken_.push_back(box);
    return true;
  }
  return false;
}

}  // namespace motor
