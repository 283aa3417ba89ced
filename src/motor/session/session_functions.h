#pragma once

#include <span>

#include "motor/language/function_table.h"

namespace motor {

class SessionState;

// The functions that need a session: windows, maps, tables, searches, objects. Adding one is one row of the table in
// session_functions.cpp and one function in the file of its family.
[[nodiscard]] std::span<const StateFunctionEntry<SessionState>> sessionFunctions();

// window_functions.cpp
[[nodiscard]] Value windowId(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value frontWindow(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value windowInfo(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value numberOfWindows(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value numberOfAllWindows(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value sessionInfo(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value commandInfo(SessionState& session, const Arguments& arguments);

// map_functions.cpp
[[nodiscard]] Value mapperInfo(SessionState& session, const Arguments& arguments);

// layer_functions.cpp
[[nodiscard]] Value layerInfo(SessionState& session, const Arguments& arguments);

// table_functions.cpp
[[nodiscard]] Value tableInfo(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value selectionInfo(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value numberOfColumns(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value numberOfTables(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value endOfTable(SessionState& session, const Arguments& arguments);

// search_functions.cpp
[[nodiscard]] Value searchPoint(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value searchInfo(SessionState& session, const Arguments& arguments);

// object_functions.cpp
[[nodiscard]] Value centroidX(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value centroidY(SessionState& session, const Arguments& arguments);
[[nodiscard]] Value createPoint(SessionState& session, const Arguments& arguments);

}  // namespace motor
