#pragma once

#include "motor/language/parsing/clauses.h"
#include "motor/language/parsing/token_stream.h"
#include "motor/language/statement.h"

// One function for each statement: reads what follows its words, which began at `position`.
namespace motor {

using StatementParser = Statement (*)(TokenStream& stream, Position position);

Statement parseOpenTable(TokenStream& stream, Position position);
Statement parseCloseTable(TokenStream& stream, Position position);
Statement parseCloseAll(TokenStream& stream, Position position);
Statement parseAddColumn(TokenStream& stream, Position position);
Statement parseFetch(TokenStream& stream, Position position);
Statement parseSelectStatement(TokenStream& stream, Position position);

Statement parseMapFrom(TokenStream& stream, Position position);
Statement parseAddMap(TokenStream& stream, Position position);
Statement parseRemoveMap(TokenStream& stream, Position position);
Statement parseSetMap(TokenStream& stream, Position position);
Statement parseShade(TokenStream& stream, Position position);
Statement parseSetShade(TokenStream& stream, Position position);

Statement parseSetLegend(TokenStream& stream, Position position);
Statement parseCreateLegend(TokenStream& stream, Position position);
Statement parseCreateCartographicLegend(TokenStream& stream, Position position);

Statement parseSetWindow(TokenStream& stream, Position position);
Statement parseOpenWindow(TokenStream& stream, Position position);
Statement parseCloseWindow(TokenStream& stream, Position position);
Statement parseSetApplicationWindow(TokenStream& stream, Position position);
Statement parseSetNextDocument(TokenStream& stream, Position position);

Statement parseCreateMenu(TokenStream& stream, Position position);
Statement parseCreateButtonPad(TokenStream& stream, Position position);
Statement parseAlterButtonPad(TokenStream& stream, Position position);

Statement parseRunMenuCommand(TokenStream& stream, Position position);
Statement parseRunApplication(TokenStream& stream, Position position);
Statement parseRunCommand(TokenStream& stream, Position position);
Statement parseEndSession(TokenStream& stream, Position position);
Statement parseDim(TokenStream& stream, Position position);
Statement parseUndim(TokenStream& stream, Position position);
Statement parseAssignment(TokenStream& stream, Position position);

Statement parseSetCoordSys(TokenStream& stream, Position position);
Statement parseSetDistanceUnits(TokenStream& stream, Position position);
Statement parseSetAreaUnits(TokenStream& stream, Position position);
Statement parseSetPaperUnits(TokenStream& stream, Position position);
Statement parseSetFormat(TokenStream& stream, Position position);

Statement parseCreatePoint(TokenStream& stream, Position position);
Statement parseCreateLine(TokenStream& stream, Position position);
Statement parseCreatePolyline(TokenStream& stream, Position position);
Statement parseCreateRegion(TokenStream& stream, Position position);
Statement parseCreateRectangle(TokenStream& stream, Position position);
Statement parseCreateRoundedRectangle(TokenStream& stream, Position position);
Statement parseCreateEllipse(TokenStream& stream, Position position);
Statement parseCreateArc(TokenStream& stream, Position position);
Statement parseCreateText(TokenStream& stream, Position position);

// The clauses of the statements that have some in any order, for the manual.
[[nodiscard]] ClauseEntries openTableClauses();
[[nodiscard]] ClauseEntries selectClauses();
[[nodiscard]] ClauseEntries mapFromClauses();
[[nodiscard]] ClauseEntries setMapClauses();
[[nodiscard]] ClauseEntries setWindowClauses();
[[nodiscard]] ClauseEntries setLegendClauses();
[[nodiscard]] ClauseEntries shadeClauses();
[[nodiscard]] ClauseEntries createMenuClauses();
[[nodiscard]] ClauseEntries createButtonPadClauses();
[[nodiscard]] ClauseEntries alterButtonPadClauses();
[[nodiscard]] ClauseEntries cartographicLegendClauses();
[[nodiscard]] ClauseEntries shapeClauses();
[[nodiscard]] ClauseEntries textClauses();

}  // namespace motor
