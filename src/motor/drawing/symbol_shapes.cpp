#include "motor/drawing/symbol_shapes.h"

#include <QList>
#include <QString>
#include <algorithm>
#include <array>
#include <iterator>

namespace motor {

namespace {

constexpr std::string_view kSquare = "M -.8 -.8 L .8 -.8 L .8 .8 L -.8 .8 Z";
constexpr std::string_view kDiamond = "M 0 -1 L 1 0 L 0 1 L -1 0 Z";
constexpr std::string_view kCircle = "C 0 0 .9";
constexpr std::string_view kStar =
    "M 0 -1 L .235 -.324 L .951 -.309 L .38 .124 L .588 .809 L 0 .4 L -.588 .809 L -.38 .124 L -.951 -.309 "
    "L -.235 -.324 Z";
constexpr std::string_view kTriangleUp = "M 0 -.9 L 1 .8 L -1 .8 Z";
constexpr std::string_view kTriangleDown = "M 0 .9 L 1 -.8 L -1 -.8 Z";

constexpr SymbolShape kShapes[] = {
    {32, true, kSquare},
    {33, true, kDiamond},
    {34, true, kCircle},
    {35, true, kStar},
    {36, true, kTriangleUp},
    {37, true, kTriangleDown},
    {38, false, kSquare},
    {39, false, kDiamond},
    {40, false, kCircle},
    {41, false, kStar},
    {42, false, kTriangleUp},
    {43, false, kTriangleDown},
    // A figure within a figure.
    {44, true, "M -.9 -.9 L .9 -.9 L .9 .9 L -.9 .9 Z C 0 0 .5"},
    {45, true, "M 0 -1 L 1 0 L 0 1 L -1 0 Z M 0 -.45 L .45 0 L 0 .45 L -.45 0 Z"},
    {46, true, "C 0 0 .95 C 0 0 .6 C 0 0 .3"},
    {47, true, "C 0 0 .95 C 0 0 .5"},
    {48, true,
     "C 0 0 .95 M -.2 -.7 L .2 -.7 L .2 -.2 L .7 -.2 L .7 .2 L .2 .2 L .2 .7 L -.2 .7 L -.2 .2 L -.7 .2 "
     "L -.7 -.2 L -.2 -.2 Z"},
    // Crosses.
    {49, false, "M 0 -.9 L 0 .9 M -.9 0 L .9 0"},
    {50, false, "M -.75 -.75 L .75 .75 M -.75 .75 L .75 -.75"},
    {51, false, "M 0 -.9 L 0 .9 M -.78 -.45 L .78 .45 M -.78 .45 L .78 -.45"},
    {52, true,
     "M -.3 -.9 L .3 -.9 L .3 -.3 L .9 -.3 L .9 .3 L .3 .3 L .3 .9 L -.3 .9 L -.3 .3 L -.9 .3 L -.9 -.3 "
     "L -.3 -.3 Z"},
    // Arrows.
    {53, true, "M 0 -1 L .7 -.1 L .25 -.1 L .25 .95 L -.25 .95 L -.25 -.1 L -.7 -.1 Z"},
    {54, true, "M 0 1 L .7 .1 L .25 .1 L .25 -.95 L -.25 -.95 L -.25 .1 L -.7 .1 Z"},
    {55, true, "M -1 0 L -.1 -.7 L -.1 -.25 L .95 -.25 L .95 .25 L -.1 .25 L -.1 .7 Z"},
    {56, true, "M 1 0 L .1 -.7 L .1 -.25 L -.95 -.25 L -.95 .25 L .1 .25 L .1 .7 Z"},
    // Figures of more corners, and halves.
    {57, true, "M 0 -.95 L .9 -.29 L .56 .77 L -.56 .77 L -.9 -.29 Z"},
    {58, true, "M -.5 -.87 L .5 -.87 L 1 0 L .5 .87 L -.5 .87 L -1 0 Z"},
    {59, true, "M -.38 -.92 L .38 -.92 L .92 -.38 L .92 .38 L .38 .92 L -.38 .92 L -.92 .38 L -.92 -.38 Z"},
    {60, true, "M -.8 -.8 L .8 .8 L -.8 .8 Z"},
    {61, true, "M -.9 -.8 L .9 -.8 L -.9 .8 L .9 .8 Z"},
    // Signs on a map.
    {62, true, "M -.6 -1 L -.4 -1 L -.4 -.9 L .8 -.5 L -.4 -.1 L -.4 1 L -.6 1 Z"},  // flag
    {63, true,
     "M 0 -1 L 1 -.1 L .7 -.1 L .7 .9 L .2 .9 L .2 .3 L -.2 .3 L -.2 .9 L -.7 .9 L -.7 -.1 L -1 -.1 Z"},  // house
    {64, true,
     "M -.1 -1 L .1 -1 L .1 -.8 L .3 -.8 L .3 -.6 L .1 -.6 L .1 -.4 L .7 0 L .7 .95 L -.7 .95 L -.7 0 "
     "L -.1 -.4 L -.1 -.6 L -.3 -.6 L -.3 -.8 L -.1 -.8 Z"},  // church
    {65, true,
     "M -.95 -.95 L .95 -.95 L .95 .95 L -.95 .95 Z M -.55 -.65 L -.25 -.65 L -.25 -.15 L .25 -.15 L .25 -.65 "
     "L .55 -.65 L .55 .65 L .25 .65 L .25 .15 L -.25 .15 L -.25 .65 L -.55 .65 Z"},  // hospital
    {66, true, "M 0 1 L -.55 .1 L -.65 -.35 L -.45 -.8 L 0 -1 L .45 -.8 L .65 -.35 L .55 .1 Z C 0 -.4 .25"},  // pin
    {67, true,
     "M -.12 -.4 L 0 -1 L .12 -.4 L .12 -.25 L 1 .3 L 1 .45 L .12 .2 L .1 .7 L .35 .9 L .35 1 L -.35 1 "
     "L -.35 .9 L -.1 .7 L -.12 .2 L -1 .45 L -1 .3 L -.12 -.25 Z"},  // airfield
};

QPainterPath parsedFigure(const SymbolShape& shape) {
  const QString figure = QString::fromLatin1(shape.figure.data(), static_cast<qsizetype>(shape.figure.size()));
  const QStringList words = figure.split(' ');
  QPainterPath path;
  qsizetype next = 0;
  const auto number = [&] { return words[next++].toDouble(); };
  while (next < words.size()) {
    const QString command = words[next++];
    if (command == "Z") {
      path.closeSubpath();
      continue;
    }
    const double x = number();
    const QPointF point(x, number());
    if (command == "M") path.moveTo(point);
    if (command == "L") path.lineTo(point);
    if (command == "C") {
      const double radius = number();
      path.addEllipse(point, radius, radius);
    }
  }
  return path;
}

}  // namespace

const SymbolShape* symbolShape(int number) {
  for (const SymbolShape& shape : kShapes) {
    if (shape.number == number) return &shape;
  }
  return nullptr;
}

QPainterPath symbolPath(const SymbolShape& shape) {
  // Parsed once: a layer of points asks for the same few shapes thousands of times.
  static const std::array<QPainterPath, std::size(kShapes)> kPaths = [] {
    std::array<QPainterPath, std::size(kShapes)> paths;
    std::transform(std::begin(kShapes), std::end(kShapes), paths.begin(), parsedFigure);
    return paths;
  }();
  return kPaths[static_cast<std::size_t>(&shape - kShapes)];
}

}  // namespace motor
