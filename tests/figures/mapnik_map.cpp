#include "mapnik_map.h"

#include <mapnik/agg_renderer.hpp>
#include <mapnik/feature_factory.hpp>
#include <mapnik/feature_type_style.hpp>
#include <mapnik/geometry.hpp>
#include <mapnik/image.hpp>
#include <mapnik/layer.hpp>
#include <mapnik/map.hpp>
#include <mapnik/memory_datasource.hpp>
#include <mapnik/rule.hpp>
#include <mapnik/symbolizer.hpp>

#include "region_rings.h"

namespace figures {
namespace {

constexpr const char* kSystem = "epsg:32630";
constexpr const char* kStyle = "regions";

mapnik::geometry::polygon<double> polygonOf(const motor::MapObject& region) {
  mapnik::geometry::polygon<double> polygon;
  bool isFirst = true;
  for (const auto& points : ringsOf(region)) {
    mapnik::geometry::linear_ring<double> ring;
    for (const motor::Point& p : points) ring.emplace_back(p.x, p.y);
    if (isFirst) {
      polygon.set_exterior_ring(std::move(ring));
    } else {
      polygon.add_hole(std::move(ring));
    }
    isFirst = false;
  }
  return polygon;
}

mapnik::feature_type_style filledWithBorder() {
  mapnik::polygon_symbolizer fill;
  mapnik::put(fill, mapnik::keys::fill, mapnik::color(200, 220, 240));
  mapnik::line_symbolizer border;
  mapnik::put(border, mapnik::keys::stroke, mapnik::color(0, 0, 0));
  mapnik::put(border, mapnik::keys::stroke_width, 1.0);
  mapnik::rule rule;
  rule.append(std::move(fill));
  rule.append(std::move(border));
  mapnik::feature_type_style style;
  style.add_rule(std::move(rule));
  return style;
}

std::shared_ptr<mapnik::memory_datasource> inMemory(const std::vector<motor::ObjectPtr>& regions) {
  mapnik::parameters parameters;
  parameters["type"] = "memory";
  auto source = std::make_shared<mapnik::memory_datasource>(parameters);
  const auto context = std::make_shared<mapnik::context_type>();
  mapnik::value_integer id = 0;
  for (const motor::ObjectPtr& region : regions) {
    const mapnik::feature_ptr feature = mapnik::feature_factory::create(context, ++id);
    feature->set_geometry(polygonOf(*region));
    source->push(feature);
  }
  return source;
}

}  // namespace

struct MapnikMap::Data {
  mapnik::Map map;
  mapnik::image_rgba8 picture;
};

MapnikMap::MapnikMap(const std::vector<motor::ObjectPtr>& regions, const motor::Box& view, int width, int height)
    : data_(std::make_unique<Data>(Data{mapnik::Map(width, height, kSystem), mapnik::image_rgba8(width, height)})) {
  data_->map.set_background(mapnik::color(255, 255, 255));
  data_->map.insert_style(kStyle, filledWithBorder());
  mapnik::layer layer("regions", kSystem);
  layer.set_datasource(inMemory(regions));
  layer.add_style(kStyle);
  data_->map.add_layer(layer);
  data_->map.zoom_to_box({view.minX, view.minY, view.maxX, view.maxY});
}

MapnikMap::~MapnikMap() = default;

void MapnikMap::paint() { mapnik::agg_renderer<mapnik::image_rgba8>(data_->map, data_->picture).apply(); }

std::size_t MapnikMap::paintedPixels() const {
  constexpr std::uint32_t kWhite = 0xFFFFFFFF;
  std::size_t painted = 0;
  for (const std::uint32_t pixel : data_->picture) painted += pixel == kWhite ? 0 : 1;
  return painted;
}

}  // namespace figures
