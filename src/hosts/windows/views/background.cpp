#include "hosts/windows/views/background.h"

#include "forms/shape.h"
#include "hosts/screen/looks.h"
#include "hosts/screen/palette.h"

namespace windows {
namespace {

forms::Color colorOf(const forms::Shape& shape) {
  switch (screen::lookOf(shape)) {
    case screen::ShapeLook::header:
    case screen::ShapeLook::line:
      return screen::palette::kNavy;
    case screen::ShapeLook::card:
      return screen::palette::kCard;
    case screen::ShapeLook::stage:
      break;
  }
  return screen::palette::kPaper;
}

// A header reaches over the whole width of its form, whatever its own.
bool liesBehind(const forms::Shape& shape, const forms::Control& control) {
  const double x = control.left() + control.width() / 2;
  const double y = control.top() + control.height() / 2;
  const bool across =
      screen::lookOf(shape) == screen::ShapeLook::header || (x >= shape.left() && x <= shape.left() + shape.width());
  return across && y >= shape.top() && y <= shape.top() + shape.height();
}

}  // namespace

forms::Color formColorBehind(const forms::Control& control) {
  forms::Color color = screen::palette::kPaper;
  for (const forms::Control* each : control.form().controls()) {
    if (each == &control) break;
    const auto* shape = dynamic_cast<const forms::Shape*>(each);
    if (shape != nullptr && shape->visible() && liesBehind(*shape, control)) color = colorOf(*shape);
  }
  return color;
}

}  // namespace windows
