#pragma once

#include <QColor>
#include <QFont>

// How the map window writes what is not of the map: on its plates, on a printed page.
namespace motor {

inline constexpr QColor kInk(31, 42, 60);
inline constexpr QColor kMuted(92, 102, 116);

// `family` is a name that a statement could give; `points` is the size.
[[nodiscard]] QFont lettering(const char* family, double points, bool bold);

}  // namespace motor
