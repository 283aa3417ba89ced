#pragma once

#include "motor/language/statements/parts.h"

namespace motor {

// Set Window ...: what is to change, the rest stays. Clauses about the printer, snapping and tables' fonts are
// understood and not kept.
struct SetWindow {
  Position position;
  WindowReference window;
  WindowShape shape;
  ExpressionPtr title;
  ExpressionPtr parent;  // Parent handle
  std::optional<bool> shown;
  bool front = false;
  std::optional<bool> scrollBars;
  std::optional<bool> autoscroll;
  std::optional<bool> closeBox;  // SysMenuClose
};

// Open Window ...
struct OpenWindow {
  Position position;
  WindowReference window;
};

// Close Window ... [Interactive]
struct CloseWindow {
  Position position;
  WindowReference window;
};

// Set Application Window handle
struct SetApplicationWindow {
  Position position;
  ExpressionPtr handle;
};

// Set Next Document [Parent handle] [Style n]
struct SetNextDocument {
  Position position;
  ExpressionPtr parent;
  ExpressionPtr style;
};

}  // namespace motor
