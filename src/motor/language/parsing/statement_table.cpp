#include "motor/language/parsing/statement_table.h"

#include <array>

#include "motor/language/parsing/passed_over_parsers.h"

namespace motor {

namespace {

constexpr std::array kStatements = {
    StatementRule{"open table", parseOpenTable, "file [As name] [...]", openTableClauses},
    StatementRule{"open window", parseOpenWindow, "window", nullptr},
    StatementRule{"close table", parseCloseTable, "table, ... [Interactive]", nullptr},
    StatementRule{"close all", parseCloseAll, "[Interactive]", nullptr},
    StatementRule{"close window", parseCloseWindow, "window [Interactive]", nullptr},
    StatementRule{"map from", parseMapFrom, "table, ... [...]", mapFromClauses},
    StatementRule{"set map", parseSetMap, "[Window id] ...", setMapClauses},
    StatementRule{"set window", parseSetWindow, "window ...", setWindowClauses},
    StatementRule{"set application window", parseSetApplicationWindow, "handle", nullptr},
    StatementRule{"set next document", parseSetNextDocument, "[Parent handle] [Style n]", nullptr},
    StatementRule{"set coordsys", parseSetCoordSys, "Earth ... | NonEarth ... | Layout ... | Table name | Window id",
                  nullptr},
    StatementRule{"set distance", parseSetDistanceUnits, "Units unit", nullptr},
    StatementRule{"set area", parseSetAreaUnits, "Units unit", nullptr},
    StatementRule{"set paper", parseSetPaperUnits, "Units unit", nullptr},
    StatementRule{"set format", parseSetFormat, "Number | Date format", nullptr},
    StatementRule{"set legend", parseSetLegend, "[Window id] Layer n | name | Prev ..., ...", setLegendClauses},
    StatementRule{"set shade", parseSetShade, "[Window id] layer | Prev With ...", shadeClauses},
    StatementRule{"add map", parseAddMap, "[Window id] [Auto] Layer table, ...", nullptr},
    StatementRule{"add column", parseAddColumn,
                  "table (column [type]) Values value, ... | From table Set To value Where column = column [Dynamic]",
                  nullptr},
    StatementRule{"remove map", parseRemoveMap, "[Window id] Layer layer, ... [Interactive]", nullptr},
    StatementRule{"shade", parseShade, "[Window id] layer With value, ... [Ignore value, ...] kind [# ... #]",
                  shadeClauses},
    StatementRule{"select", parseSelectStatement, "* | column [name], ... From table, ... [...]", selectClauses},
    StatementRule{"fetch", parseFetch, "First | Last | Next | Prev | Rec n From table", nullptr},
    StatementRule{"create menu", parseCreateMenu, "name [ID n] As entry, ...", createMenuClauses},
    StatementRule{"create buttonpad", parseCreateButtonPad, "title [ID n] As button ... [...]", createButtonPadClauses},
    StatementRule{"alter buttonpad", parseAlterButtonPad, "title | ID n ...", alterButtonPadClauses},
    StatementRule{"create legend", parseCreateLegend, "[From Window id] [Show | Hide]", nullptr},
    StatementRule{"create cartographic legend", parseCreateCartographicLegend, "[...] Frame From Layer layer ...",
                  cartographicLegendClauses},
    StatementRule{"create point", parseCreatePoint, "[Into Window id] (x, y) [Symbol ...]", nullptr},
    StatementRule{"create line", parseCreateLine, "[Into Window id] (x, y) (x, y) [Pen ...]", nullptr},
    StatementRule{"create pline", parseCreatePolyline, "[Into Window id] [n | Multiple parts n] (x, y) ... [Pen ...]",
                  shapeClauses},
    StatementRule{"create region", parseCreateRegion, "[Into Window id] parts n (x, y) ... [Pen ...] [Brush ...]",
                  shapeClauses},
    StatementRule{"create rect", parseCreateRectangle, "[Into Window id] (x, y) (x, y) [Pen ...] [Brush ...]", nullptr},
    StatementRule{"create roundrect", parseCreateRoundedRectangle,
                  "[Into Window id] (x, y) (x, y) rounding [Pen ...] [Brush ...]", nullptr},
    StatementRule{"create ellipse", parseCreateEllipse, "[Into Window id] (x, y) (x, y) [Pen ...] [Brush ...]",
                  nullptr},
    StatementRule{"create arc", parseCreateArc, "[Into Window id] (x, y) (x, y) start end [Pen ...]", nullptr},
    StatementRule{"create text", parseCreateText, "[Into Window id] text (x, y) (x, y) [...]", textClauses},
    StatementRule{"run menu command", parseRunMenuCommand, "code | ID n", nullptr},
    StatementRule{"run application", parseRunApplication, "workspace", nullptr},
    StatementRule{"run command", parseRunCommand, "text", nullptr},
    StatementRule{"end mapinfo", parseEndSession, "[Interactive]", nullptr},
    StatementRule{"dim", parseDim, "name, ... As type, ...", nullptr},
    StatementRule{"undim", parseUndim, "name, ...", nullptr},
};

constexpr std::array kPassedOver = {
    PassedOverRule{"browse", readBrowse},
    PassedOverRule{"layout", readLayout},
    PassedOverRule{"graph", readGraph},
    PassedOverRule{"create frame", readCreateFrame},
    PassedOverRule{"set layout", readSetLayout},
    PassedOverRule{"set browse", readSetBrowse},
    PassedOverRule{"set graph", readSetGraph},
    PassedOverRule{"set printersettings", readSetPrinterSettings},
    PassedOverRule{"set style", readSetStyle},
    PassedOverRule{"set resolution", readSetResolution},
    PassedOverRule{"set progressbars", readSetProgressBars},
    PassedOverRule{"set cartographic", readSetCartographicLegend},
    PassedOverRule{"set digitizer", readSetDigitizer},
    PassedOverRule{"reload symbols", readReloadSymbols},
    PassedOverRule{"print", readPrint},
};

constexpr const char* kWrites = "no se permite: los datos solo se leen";
constexpr const char* kPrints = "no se permite imprimir desde una instrucción: los datos solo se leen";
constexpr const char* kRuns = "no se permite ejecutar ni parar programas: los datos solo se leen";
constexpr const char* kLoads = "no se permite cargar código: los datos solo se leen";
constexpr const char* kConnects = "no se permite hablar con otros programas: los datos solo se leen";

constexpr std::array kRefused = {
    RefusedRule{"save", kWrites},
    RefusedRule{"commit", kWrites},
    RefusedRule{"rollback", kWrites},
    RefusedRule{"insert", kWrites},
    RefusedRule{"update", kWrites},
    RefusedRule{"delete", kWrites},
    RefusedRule{"drop", kWrites},
    RefusedRule{"pack", kWrites},
    RefusedRule{"alter table", kWrites},
    RefusedRule{"alter object", kWrites},
    RefusedRule{"alter map", kWrites},
    RefusedRule{"create table", kWrites},
    RefusedRule{"create index", kWrites},
    RefusedRule{"create map", kWrites},
    RefusedRule{"create object", kWrites},
    RefusedRule{"create grid", kWrites},
    RefusedRule{"create report", kWrites},
    RefusedRule{"create map3d", kWrites},
    RefusedRule{"create prismmap", kWrites},
    RefusedRule{"create redistricter", kWrites},
    RefusedRule{"rename", kWrites},
    RefusedRule{"register", kWrites},
    RefusedRule{"unlink", kWrites},
    RefusedRule{"link", kWrites},
    RefusedRule{"export", kWrites},
    RefusedRule{"import", kWrites},
    RefusedRule{"kill", kWrites},
    RefusedRule{"open file", kWrites},
    RefusedRule{"close file", kWrites},
    RefusedRule{"put", kWrites},
    RefusedRule{"get", kWrites},
    RefusedRule{"seek", kWrites},
    RefusedRule{"write", kWrites},
    RefusedRule{"objects", kWrites},
    RefusedRule{"geocode", kWrites},
    RefusedRule{"autolabel", kWrites},
    RefusedRule{"printwin", kPrints},
    RefusedRule{"run program", kRuns},
    RefusedRule{"terminate application", kRuns},
    RefusedRule{"declare", kLoads},
    RefusedRule{"include", kLoads},
    RefusedRule{"server", kConnects},
    RefusedRule{"open connection", kConnects},
    RefusedRule{"close connection", kConnects},
    RefusedRule{"set connection", kConnects},
    RefusedRule{"ddeinitiate", kConnects},
    RefusedRule{"ddeexecute", kConnects},
    RefusedRule{"ddepoke", kConnects},
    RefusedRule{"ddeterminate", kConnects},
    RefusedRule{"ddeterminateall", kConnects},
};

}  // namespace

std::span<const StatementRule> statementRules() { return kStatements; }
std::span<const PassedOverRule> passedOverRules() { return kPassedOver; }
std::span<const RefusedRule> refusedRules() { return kRefused; }

}  // namespace motor
