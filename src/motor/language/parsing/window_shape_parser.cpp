#include "motor/language/parsing/window_shape_parser.h"

#include <array>

namespace motor {

namespace {

template <auto kField>
void readMeasure(TokenStream& stream, WindowShape& shape) {
  shape.*kField = parseMeasure(stream);
}

template <WindowState kState>
void setState(TokenStream& /*stream*/, WindowShape& shape) {
  shape.state = kState;
}

constexpr std::array kRules = {
    ClauseRule<WindowShape>{"position", Support::done,
                            [](TokenStream& stream, WindowShape& shape) { shape.position = parsePlacement(stream); }},
    ClauseRule<WindowShape>{"width", Support::done, readMeasure<&WindowShape::width>},
    ClauseRule<WindowShape>{"height", Support::done, readMeasure<&WindowShape::height>},
    ClauseRule<WindowShape>{"min", Support::done, setState<WindowState::minimized>},
    ClauseRule<WindowShape>{"max", Support::done, setState<WindowState::maximized>},
    ClauseRule<WindowShape>{"restore", Support::done, setState<WindowState::restored>},
};

}  // namespace

std::span<const ClauseRule<WindowShape>> windowShapeRules() { return kRules; }

}  // namespace motor
