#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "motor/language/expression.h"
#include "motor/language/style_clause.h"

// Parts that several statements are made of. A null expression or an empty optional is a part that was left out.
namespace motor {

// A table's name, or another name that is not evaluated.
struct Name {
  std::string text;
  Position position;
};

// `(x, y)`
struct CoordinatePair {
  Position position;
  ExpressionPtr x;
  ExpressionPtr y;
};

// A quantity with its unit: `300 Units "km"`. The unit is empty when it was left out.
struct Measure {
  ExpressionPtr value;
  std::string unit;
};

// `Position (x, y) Units u`
struct Placement {
  CoordinatePair at;
  std::string unit;
};

// The layer that a clause speaks of, by name (written as a text or as a bare word) or by number (0 is the cosmetic
// layer).
struct LayerReference {
  Position position;
  std::string name;      // empty when there is a number
  ExpressionPtr number;  // null when there is a name
};

// The window that a clause speaks of: one of the special windows by its name (in lower case: "legend", "ruler", "info",
// "mapbasic", "message", "help", "statistics", ...) or any window by its id.
struct WindowReference {
  Position position;
  std::string name;  // empty when there is an id
  ExpressionPtr id;  // null when there is a name
};

// `CoordSys ...`: the clause after the word, as written, and which system it names.
struct CoordSysClause {
  enum class Kind { earth, nonEarth, layout, table, window };

  Position position;
  Kind kind = Kind::earth;
  std::string text;      // "Earth Projection 8, 28, ...", for CoordinateSystem::fromClause
  std::string table;     // CoordSys Table t
  ExpressionPtr window;  // CoordSys Window id
};

// Where and how large a new or changed window is.
enum class WindowState { minimized, maximized, restored };
struct WindowShape {
  std::optional<Placement> position;
  std::optional<Measure> width;
  std::optional<Measure> height;
  std::optional<WindowState> state;
};

}  // namespace motor
