#pragma once

#include "motor/language/statement.h"

namespace motor {

class SessionState;

// The table of what the engine does for each kind of statement: a statement is one line here and one function in the
// file of its family. All throw LanguageError or EngineError for what cannot be done, and then change nothing on the
// map.

// table_statements.cpp
void execute(SessionState& session, const OpenTable& statement);
void execute(SessionState& session, const CloseTable& statement);
void execute(SessionState& session, const CloseAll& statement);

// column_statements.cpp
void execute(SessionState& session, const AddColumn& statement);

// select_statements.cpp
void execute(SessionState& session, const SelectStatement& statement);
void execute(SessionState& session, const Fetch& statement);

// map_statements.cpp
void execute(SessionState& session, const MapFrom& statement);
void execute(SessionState& session, const SetMap& statement);
void execute(SessionState& session, const AddMapLayer& statement);
void execute(SessionState& session, const RemoveMapLayer& statement);

// theme_statements.cpp
void execute(SessionState& session, const Shade& statement);
void execute(SessionState& session, const SetShade& statement);
void execute(SessionState& session, const SetLegend& statement);

// cartographic_legend.cpp
void execute(SessionState& session, const CreateCartographicLegend& statement);

// cosmetic_statements.cpp
void execute(SessionState& session, const CreateObject& statement);

// window_statements.cpp
void execute(SessionState& session, const SetWindow& statement);
void execute(SessionState& session, const OpenWindow& statement);
void execute(SessionState& session, const CloseWindow& statement);
void execute(SessionState& session, const SetApplicationWindow& statement);
void execute(SessionState& session, const SetNextDocument& statement);
void execute(SessionState& session, const CreateLegend& statement);

// menu_statements.cpp
void execute(SessionState& session, const CreateMenu& statement);
void execute(SessionState& session, const CreateButtonPad& statement);
void execute(SessionState& session, const AlterButtonPad& statement);
void execute(SessionState& session, const RunMenuCommand& statement);

// program_statements.cpp
void execute(SessionState& session, const RunApplication& statement);
void execute(SessionState& session, const RunCommand& statement);
void execute(SessionState& session, const EndSession& statement);
void execute(SessionState& session, const SetCoordSys& statement);
void execute(SessionState& session, const SetUnits& statement);
void execute(SessionState& session, const SetFormat& statement);
void execute(SessionState& session, const Dim& statement);
void execute(SessionState& session, const Undim& statement);
void execute(SessionState& session, const Assignment& statement);
void execute(SessionState& session, const PassedOver& statement);
void execute(SessionState& session, const Refused& statement);

}  // namespace motor
