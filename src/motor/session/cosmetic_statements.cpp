#include <algorithm>
#include <cmath>
#include <numbers>

#include "motor/session/cosmetic_table.h"
#include "motor/session/executors.h"
#include "motor/session/session_state.h"
#include "motor/session/text_lines.h"

namespace motor {
namespace {

using Kind = CreateObject::Kind;

constexpr int kArcSteps = 72;

Box boxOf(const std::vector<Point>& corners) {
  Box box;
  for (const Point& p : corners) box.add(p);
  return box;
}

// Part of the ellipse inside a box, by angles in degrees counter-clockwise from the right.
std::vector<Point> ellipseArc(const Box& box, double from, double to) {
  const Point centre{(box.minX + box.maxX) / 2, (box.minY + box.maxY) / 2};
  if (to <= from) to += 360;
  std::vector<Point> points;
  for (int step = 0; step <= kArcSteps; ++step) {
    const double angle = (from + (to - from) * step / kArcSteps) * std::numbers::pi / 180;
    points.push_back({centre.x + (box.maxX - box.minX) / 2 * std::cos(angle),
                      centre.y + (box.maxY - box.minY) / 2 * std::sin(angle)});
  }
  return points;
}

std::vector<Point> rectangle(const Box& b) {
  return {{b.minX, b.minY}, {b.maxX, b.minY}, {b.maxX, b.maxY}, {b.minX, b.maxY}, {b.minX, b.minY}};
}

// A box whose corners are quarters of circles of diameter `rounding`.
std::vector<Point> roundedRectangle(const Box& b, double rounding) {
  const double r = std::clamp(rounding / 2, 0.0, std::min(b.maxX - b.minX, b.maxY - b.minY) / 2);
  std::vector<Point> points;
  const auto corner = [&](double x, double y, double from) {
    const std::vector<Point> arc = ellipseArc({x - r, y - r, x + r, y + r}, from, from + 90);
    points.insert(points.end(), arc.begin(), arc.end());
  };
  corner(b.maxX - r, b.maxY - r, 0);
  corner(b.minX + r, b.maxY - r, 90);
  corner(b.minX + r, b.minY + r, 180);
  corner(b.maxX - r, b.minY + r, 270);
  points.push_back(points.front());
  return points;
}

MapObject::Kind objectKind(Kind kind) {
  switch (kind) {
    case Kind::point:
      return MapObject::Kind::point;
    case Kind::line:
    case Kind::polyline:
    case Kind::arc:
      return MapObject::Kind::polyline;
    case Kind::text:
      return MapObject::Kind::text;
    case Kind::region:
    case Kind::rectangle:
    case Kind::roundedRectangle:
    case Kind::ellipse:
      return MapObject::Kind::region;
  }
  return MapObject::Kind::point;
}

std::vector<Point> outline(const CreateObject& statement, const std::vector<Point>& given,
                           const SessionState& session) {
  const auto angle = [&](std::size_t i) {
    return i < statement.angles.size() ? session.number(statement.angles[i]) : 0;
  };
  switch (statement.kind) {
    case Kind::point:
    case Kind::line:
    case Kind::polyline:
      return given;
    case Kind::text: {
      const Box box = boxOf(given);
      return {{box.minX, box.minY}};
    }
    case Kind::region: {
      std::vector<Point> ring = given;
      if (!ring.empty() && !(ring.front() == ring.back())) ring.push_back(ring.front());
      return ring;
    }
    case Kind::rectangle:
      return rectangle(boxOf(given));
    case Kind::roundedRectangle:
      return roundedRectangle(boxOf(given), angle(0));
    case Kind::ellipse:
      return ellipseArc(boxOf(given), 0, 360);
    case Kind::arc:
      return ellipseArc(boxOf(given), angle(0), angle(1));
  }
  return given;
}

// How high the box of a text is, in the target's coordinates.
double heightOf(const CreateObject& statement, const SessionState& session, const CoordinateSystem& target) {
  Box box;
  const Transformation toTarget(session.coordinateSystem, target);
  for (const CoordinatePair& corner : statement.parts.front()) box.add(toTarget(session.point(corner)));
  return box.maxY - box.minY;
}

// The lines of a text share its box.
void setText(MapObject& object, std::string text, double height) {
  const auto further = static_cast<double>(std::count(text.begin(), text.end(), '\n'));
  object.text = std::move(text);
  object.lineHeight = height / (1 + further * double{object.lineSpacing});
}

// A multiple of a line's height; what is none leaves the lines as they are.
float spacingOf(double wanted) {
  constexpr double kMost = 10;
  return wanted > 0 ? static_cast<float>(std::min(wanted, kMost)) : 1;
}

ObjectPtr objectOf(const CreateObject& statement, const SessionState& session, const CoordinateSystem& target) {
  auto object = std::make_shared<MapObject>();
  object->kind = objectKind(statement.kind);
  for (const std::vector<CoordinatePair>& part : statement.parts) {
    std::vector<Point> given;
    for (const CoordinatePair& pair : part) given.push_back(session.point(pair));
    const std::vector<Point> points = outline(statement, given, session);
    object->parts.push_back(static_cast<std::uint32_t>(object->points.size()));
    object->points.insert(object->points.end(), points.begin(), points.end());
  }
  Transformation(session.coordinateSystem, target).apply(object->points);
  for (const Point& p : object->points) object->bounds.add(p);
  const Styles styles = evaluate(statement.style, session.scope);
  object->pen = styles.line ? *styles.line : styles.pen.value_or(Pen{});
  object->brush = styles.brush.value_or(Brush{});
  object->symbol = styles.symbol.value_or(Symbol{});
  object->font = styles.font.value_or(Font{});
  object->justify = statement.justify;
  if (statement.spacing) object->lineSpacing = spacingOf(session.number(statement.spacing));
  if (statement.text)
    setText(*object, withLineBreaks(session.text(statement.text)), heightOf(statement, session, target));
  if (statement.angle) object->angle = session.number(statement.angle);
  return object;
}

}  // namespace

void execute(SessionState& session, const CreateObject& statement) {
  const bool goesElsewhere =
      statement.window ? session.isPassedOver(session.integer(statement.window)) : session.drawsOnLayout;
  if (goesElsewhere) return;
  MapWindow& window = session.windowOrFront(statement.window);
  TablePtr& table = window.map().cosmetic.table;
  const auto drawn = table ? std::dynamic_pointer_cast<const CosmeticTable>(table)
                           : std::make_shared<const CosmeticTable>(window.map().coordinateSystem);
  table = drawn->with(objectOf(statement, session, drawn->coordinateSystem()));
  window.changed();
}

}  // namespace motor
