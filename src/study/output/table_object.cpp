#include "study/output/table_object.h"

#include <ogrsf_frmts.h>

#include <array>
#include <cstdio>

namespace study {

namespace {

std::string colourText(int colour) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "#%06x", static_cast<unsigned>(colour) & 0xFFFFFFu);
  return text.data();
}

std::string penText(const ObjectStyle& style) {
  if (!style.penColour) return R"(PEN(w:1px,c:#000000,id:"mapinfo-pen-1,ogr-pen-1"))";
  return "PEN(w:" + std::to_string(style.penWidth) + "px,c:" + colourText(*style.penColour) +
         R"(,id:"mapinfo-pen-2,ogr-pen-0"))";
}

std::string brushText(const ObjectStyle& style) {
  if (!style.fill) return R"(BRUSH(fc:#000000,bc:#ffffff,id:"mapinfo-brush-1,ogr-brush-1"))";
  return "BRUSH(fc:" + colourText(*style.fill) + R"(,bc:#ffffff,id:"mapinfo-brush-2,ogr-brush-0"))";
}

std::unique_ptr<OGRGeometry> geometryOf(const Area& area) {
  std::vector<OGRGeometry*> polygons;
  for (const Ring& ring : area) {
    auto line = std::make_unique<OGRLinearRing>();
    for (const Point& p : ring) line->addPoint(p.x, p.y);
    line->closeRings();
    auto polygon = std::make_unique<OGRPolygon>();
    polygon->addRingDirectly(line.release());
    polygons.push_back(polygon.release());
  }
  // Finds out which ring is a hole of which.
  return std::unique_ptr<OGRGeometry>(
      OGRGeometryFactory::organizePolygons(polygons.data(), static_cast<int>(polygons.size()), nullptr));
}

}  // namespace

TableObject::TableObject(const Area& area, const ObjectStyle& style)
    : geometry_(geometryOf(area)), style_(penText(style) + ";" + brushText(style)) {}

TableObject::~TableObject() = default;
TableObject::TableObject(TableObject&&) noexcept = default;
TableObject& TableObject::operator=(TableObject&&) noexcept = default;

}  // namespace study
