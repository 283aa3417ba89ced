#include "study/reports/map_picture.h"

#include <algorithm>
#include <cmath>

#include "study/reports/simplified_borders.h"
#include "study/thematic/classes.h"
#include "study/thematic/thematic_palette.h"
#include "study/thematic/thematic_workspace.h"
#include "text/spanish_number.h"

namespace study::reports {

namespace {

constexpr double kScaleHeight = 14;
constexpr double kFinest = 0.2;  // no border moves by more points than this
constexpr TextStyle kName{6.5, true, kText};
constexpr TextStyle kSmall{7, false, kFaintText};
constexpr TextStyle kLegend{7.5};

// From metres to the paper.
class Placement {
 public:
  Placement(const Extent& extent, const QRectF& box) : extent_(extent), box_(box) {
    const double width = std::max(extent.width(), 1.0);
    const double height = std::max(extent.height(), 1.0);
    pointsByMetre_ = std::min(box.width() / width, box.height() / height);
  }
  [[nodiscard]] double pointsByMetre() const { return pointsByMetre_; }
  [[nodiscard]] QPointF at(const Point& point) const {
    const Point centre = extent_.centre();
    return {box_.center().x() + (point.x - centre.x) * pointsByMetre_,
            box_.center().y() - (point.y - centre.y) * pointsByMetre_};
  }
  [[nodiscard]] std::vector<QPolygonF> at(const Area& area) const {
    std::vector<QPolygonF> rings;
    for (const Ring& ring : area) {
      QPolygonF& polygon = rings.emplace_back();
      for (const Point& point : ring) polygon.append(at(point));
    }
    return rings;
  }

 private:
  Extent extent_;
  QRectF box_;
  double pointsByMetre_ = 1;
};

const std::vector<Area>& areasOf(const MapPicture& map) {
  return map.units == UnitKind::zone ? map.study->zoneAreas : map.study->provinceAreas;
}

// All units together.
Area landOf(const MapPicture& map) {
  Area land;
  for (const Area& area : areasOf(map)) land.insert(land.end(), area.begin(), area.end());
  return land;
}

// The middle of the widest stretch inside at half of the height of the largest ring.
std::optional<Point> pointInside(const Area& area) {
  const auto isSmaller = [](const Ring& a, const Ring& b) { return squareMetres(a) < squareMetres(b); };
  const auto largest = std::max_element(area.begin(), area.end(), isSmaller);
  if (largest == area.end()) return std::nullopt;
  const double y = extent(Area{*largest}).centre().y + 0.123;  // hardly ever a point's own
  std::vector<double> crossings;
  for (std::size_t i = 0; i < largest->size(); ++i) {
    const Point& from = (*largest)[i];
    const Point& to = (*largest)[(i + 1) % largest->size()];
    if ((from.y > y) == (to.y > y)) continue;
    crossings.push_back(from.x + (y - from.y) / (to.y - from.y) * (to.x - from.x));
  }
  std::sort(crossings.begin(), crossings.end());
  std::optional<Point> found;
  double widest = 0;
  for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
    if (crossings[i + 1] - crossings[i] <= widest) continue;
    widest = crossings[i + 1] - crossings[i];
    found = Point{(crossings[i] + crossings[i + 1]) / 2, y};
  }
  return found;
}

// Each name on a small label; one that would cover another is left out.
void paintNames(Page& page, const QRectF& box, const Study& study, const Placement& placement) {
  std::vector<QRectF> taken;
  for (std::size_t i = 0; i < study.provinces.size(); ++i) {
    const std::optional<Point> inside = pointInside(study.provinceAreas[i]);
    if (!inside) continue;
    const double width = textWidth(study.provinces[i], kName) + 5;
    const double height = kName.size + 4;
    if (width > box.width()) continue;
    QRectF label(0, 0, width, height);
    label.moveCenter(placement.at(*inside));
    label.moveLeft(std::clamp(label.left(), box.left(), box.right() - width));
    label.moveTop(std::clamp(label.top(), box.top(), box.bottom() - height));
    if (std::any_of(taken.begin(), taken.end(), [&](const QRectF& other) { return other.intersects(label); })) continue;
    taken.push_back(label);
    page.box(label, kPaper);
    page.text({label.center().x(), label.center().y() + kName.size * 0.36}, study.provinces[i], kName, Align::centre);
  }
}

void paintScale(Page& page, const QRectF& box, double pointsByMetre) {
  constexpr double kLongest = 90;
  const double kilometres = readableStep(kLongest / pointsByMetre / 1'000);
  const double length = kilometres * 1'000 * pointsByMetre;
  const double y = box.bottom() - 4;
  page.line({box.left(), y}, {box.left() + length, y}, {kFaintText, 1});
  for (const double end : {0.0, length}) {
    page.line({box.left() + end, y - 2.5}, {box.left() + end, y + 2.5}, {kFaintText, 0.7});
  }
  page.text({box.left() + length + 5, y + 2.5}, text::shortSpanishNumber(kilometres, 3) + " km", kSmall);
}

// Many units share the room of few, and so coarser borders are as good.
double tolerance(std::size_t units, double pointsByMetre) {
  const double coarser = std::clamp(static_cast<double>(units) / 4'000, 1.0, 2.0);
  return kFinest * coarser / pointsByMetre;
}

}  // namespace

std::size_t classOf(double value, const std::vector<double>& limits) {
  const std::size_t classes = limits.size() - 1;
  for (std::size_t i = classes; i-- > 1;) {
    if (value >= limits[i]) return i;
  }
  return 0;
}

double mapHeight(const MapPicture& map, double width) {
  const Area land = landOf(map);
  if (land.empty()) return 0;
  const Extent around = extent(land);
  return 2 + (map.hasScale ? kScaleHeight : 0) + (width - 2) * around.height() / std::max(around.width(), 1.0);
}

void paintMap(Page& page, const QRectF& box, const MapPicture& map) {
  const Study& study = *map.study;
  const bool isByZone = map.units == UnitKind::zone;
  const std::vector<Area>& areas = areasOf(map);
  const Area land = landOf(map);
  if (land.empty()) return;
  const QRectF mapBox = box.adjusted(1, 1, -1, map.hasScale ? -1 - kScaleHeight : -1);
  const Placement placement(extent(land), mapBox);
  // Provinces and zones together, so that their borders agree.
  std::vector<Area> all = areas;
  if (isByZone) all.insert(all.end(), study.provinceAreas.begin(), study.provinceAreas.end());
  all = simplifiedBorders(all, tolerance(areas.size(), placement.pointsByMetre()));

  const std::vector<int> colours = palette::sequence(map.limits.size() - 1);
  const double line = isByZone ? std::clamp(40.0 / std::sqrt(static_cast<double>(areas.size())) / 10, 0.08, 0.35) : 0.8;
  for (std::size_t i = 0; i < areas.size(); ++i) {
    const bool hasValue = i < map.values.size() && map.values[i].has_value();
    page.area(placement.at(all[i]), hasValue ? colours[classOf(*map.values[i], map.limits)] : palette::kNoFigure,
              Stroke{hasValue ? palette::kThematicLine : palette::kNoFigureLine, line});
  }
  if (isByZone) {
    for (std::size_t i = areas.size(); i < all.size(); ++i) {
      page.area(placement.at(all[i]), std::nullopt, Stroke{palette::kThematicLimit, 0.6});
    }
  }
  if (map.hasNames) paintNames(page, mapBox, study, placement);
  if (map.hasScale) paintScale(page, box, placement.pointsByMetre());
}

double paintMapLegend(Page& page, QPointF leftTop, double width, const MapPicture& map) {
  constexpr double kSwatch = 16;
  constexpr double kLine = 14;
  std::vector<std::string> texts = classTexts(map.limits);
  std::vector<int> colours = palette::sequence(texts.size());
  const bool hasMissing =
      std::any_of(map.values.begin(), map.values.end(), [](const auto& value) { return !value.has_value(); });
  if (hasMissing) {
    texts.emplace_back("sin datos");
    colours.push_back(palette::kNoFigure);
  }
  QPointF at = leftTop;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const double length = kSwatch + 4 + textWidth(texts[i], kLegend);
    if (at.x() > leftTop.x() && at.x() + length > leftTop.x() + width) at = {leftTop.x(), at.y() + kLine};
    page.box({at.x(), at.y() + 1, kSwatch, 9}, colours[i]);
    page.text({at.x() + kSwatch + 4, at.y() + 8.5}, texts[i], kLegend);
    at.rx() += length + 14;
  }
  return at.y() + kLine - leftTop.y();
}

}  // namespace study::reports
