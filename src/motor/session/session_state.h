#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "motor/language/function_table.h"
#include "motor/language/statement.h"
#include "motor/session/map_window.h"
#include "motor/session/open_tables.h"
#include "motor/session/prepared_expression.h"
#include "motor/session/run_budget.h"
#include "motor/session/session.h"
#include "motor/session/session_scope.h"
#include "motor/session/table_files.h"
#include "motor/session/text_cache.h"
#include "motor/session/toolbox.h"
#include "motor/session/variables.h"

namespace motor {

// What the last click or menu entry was, as CommandInfo tells it, by code 1 to 8: x, y, Shift, Ctrl, x2, y2, the
// button's id, the menu entry's id.
using CommandEvent = std::array<Value, 8>;

// An object that SearchPoint found.
struct SearchHit {
  std::string table;
  RowId row = 0;
};

// The legend window.
struct LegendState {
  bool open = false;
  std::int64_t parent = 0;
  int x = 0;  // pixels in the parent
  int y = 0;
};

// All that statements and functions work on. Parts are public: what may be done with them is said by their own types.
class SessionState {
 public:
  SessionState(WindowPort& port, SessionOptions options);
  ~SessionState();
  SessionState(const SessionState&) = delete;
  SessionState& operator=(const SessionState&) = delete;

  WindowPort& port;
  const SessionOptions options;
  const TableFiles files;
  OpenTables tables;
  Toolbox toolbox;
  LegendState legend;
  std::int64_t rulerParent = 0;
  bool rulerOpen = false;
  CoordinateSystem coordinateSystem;  // of coordinates in statements, functions and callbacks
  bool drawsOnLayout = false;         // that system is a layout's paper
  std::string distanceUnit = "mi";
  std::string areaUnit = "sq mi";
  std::string paperUnit = "in";
  Variables variables;
  std::vector<SearchHit> hits;  // of the last SearchPoint
  CommandEvent event;
  std::shared_ptr<platform::CallbackObject> callback;
  FunctionTable functions;
  SessionScope scope{*this};
  std::vector<std::filesystem::path> workspaceFolders;  // of the workspaces being read, the innermost last
  RunBudget budget;                                     // of the text being run that no other runs
  bool ended = false;

  TextCache<std::vector<Statement>> programs;
  TextCache<PreparedExpression> expressions;

  // --- windows ---
  [[nodiscard]] const std::vector<std::unique_ptr<MapWindow>>& windows() const { return windows_; }
  // Opens a window for a map that has its layers. Throws EngineError when there are too many.
  MapWindow& openWindow(Map map);
  // The window is no more when this returns.
  void closeWindow(MapWindow& window);
  void closeAllWindows();
  // The map window in front; null when there is none.
  [[nodiscard]] MapWindow* frontWindow() const;
  // An open legend becomes that of the window.
  void bringToFront(const MapWindow& window);
  // Shows the legend, if it is open, of the map in front and where it belongs; without a map there is nothing to show.
  void placeLegend();
  // Throws EngineError for an id that no map window has.
  [[nodiscard]] MapWindow& window(std::int32_t id) const;
  // The window of an id expression, or the front map when it was left out. Throws EngineError when there is none.
  [[nodiscard]] MapWindow& windowOrFront(const ExpressionPtr& id) const;
  void allMapsChanged();
  // Only what lies above the maps has changed: the selection, the tool in the user's hand.
  void allMapsChangedAbove();
  // The tool in the user's hand from now on; choosing the ruler opens its window, choosing another closes it.
  void chooseTool(const Tool& tool);

  // --- documents that are not kept (browsers, layouts, legends of their own): each is an id only, so that what is said
  // about the front document after one was made does not hit a map ---
  // One was made; it is in front until it is closed or a map comes to the front.
  void passOverDocument();
  [[nodiscard]] bool isPassedOver(std::int32_t id) const;
  void closePassedOver(std::int32_t id);
  // The id of the document in front, a map or one that is not kept; 0 when there is none.
  [[nodiscard]] std::int32_t frontDocument() const;

  // --- evaluation ---
  [[nodiscard]] double number(const ExpressionPtr& expression) const;
  [[nodiscard]] int integer(const ExpressionPtr& expression) const;
  [[nodiscard]] std::string text(const ExpressionPtr& expression) const;
  [[nodiscard]] Point point(const CoordinatePair& pair) const;

  // Runs statements one after the other; no more of them once the session has ended.
  void run(const std::vector<Statement>& statements);
  // The signs of FormatNumber$ from now on.
  void useNumberSigns(const NumberSigns& signs);

 private:
  std::set<std::int32_t> passedOver_;                // ids
  std::int32_t frontPassedOver_ = 0;                 // the one that is in front of the maps, or 0
  std::vector<std::unique_ptr<MapWindow>> windows_;  // in opening order
  std::int32_t front_ = 0;
  int cosmeticTables_ = 0;
  int depth_ = 0;  // of statements that run statements
};

// The point of a map's window in the session's coordinates, and back.
[[nodiscard]] Point toSession(const SessionState& session, const Map& map, Point inMap);
[[nodiscard]] Point toMapCoordinates(const SessionState& session, const Map& map, Point inSession);

}  // namespace motor
