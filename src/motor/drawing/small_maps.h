#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "motor/map/map.h"
#include "motor/tables/base_table.h"
#include "motor/tables/testing_regions.h"

// Maps for tests: 100 by 100 pixels on a metre grid, one metre a pixel, the lower left corner at the origin.
namespace motor::small {

inline const Colour kRed = 0xFF0000;
inline const Colour kGreen = 0x00FF00;
inline const Colour kBlue = 0x0000FF;
inline const Pen kNoPen{1, 1, 0};
inline const Brush kNoBrush{1, 0, kTransparent};

inline Ring square(double minX, double minY, double maxX, double maxY) {
  return {{minX, minY}, {maxX, minY}, {maxX, maxY}, {minX, maxY}, {minX, minY}};
}

inline ObjectPtr region(const std::vector<Ring>& rings, const Brush& brush, const Pen& pen = kNoPen) {
  MapObject object = objectOf(MapObject::Kind::region, rings);
  object.brush = brush;
  object.pen = pen;
  return std::make_shared<MapObject>(std::move(object));
}

inline ObjectPtr line(const Ring& points, const Pen& pen) {
  MapObject object = objectOf(MapObject::Kind::polyline, {points});
  object.pen = pen;
  return std::make_shared<MapObject>(std::move(object));
}

inline ObjectPtr point(Point at, const Symbol& symbol) {
  MapObject object = objectOf(MapObject::Kind::point, {{at}});
  object.symbol = symbol;
  return std::make_shared<MapObject>(std::move(object));
}

// A layer of a table with the columns Nombre and Valor; rows may share objects. Missing names are empty.
inline Layer layer(const std::vector<ObjectPtr>& rows, std::vector<std::string> names = {}) {
  TableContents contents;
  TextColumn nameColumn;
  std::vector<double> values;
  std::vector<ObjectPtr> objects;
  std::vector<std::uint32_t> indexByRow;
  names.resize(rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    nameColumn.append(names[i]);
    values.push_back(static_cast<double>(i) + 0.5);
    std::uint32_t index = 0;
    while (index < objects.size() && objects[index] != rows[i]) ++index;
    if (index == objects.size()) objects.push_back(rows[i]);
    indexByRow.push_back(index);
  }
  contents.columns = {{"Valor", Column::Type::number, 10, 2}, {"Nombre", Column::Type::text, 40, 0}};
  contents.data = {std::move(values), std::move(nameColumn)};
  contents.deleted.assign(rows.size(), false);
  contents.objects = ObjectSet(std::move(objects), std::move(indexByRow));
  contents.hasObjects = true;
  contents.coordinateSystem = CoordinateSystem::fromWkt("");
  Layer result;
  result.name = "Capa";
  result.table = std::make_shared<BaseTable>(std::move(contents));
  return result;
}

inline Map map(std::vector<Layer> layers) {
  Map result;
  result.coordinateSystem = CoordinateSystem::fromWkt("");
  result.layers = std::move(layers);
  result.centre = {50, 50};
  result.zoomMetres = 100;
  result.pixelWidth = 100;
  result.pixelHeight = 100;
  return result;
}

}  // namespace motor::small
