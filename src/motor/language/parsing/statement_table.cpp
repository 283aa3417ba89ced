#include "motor/language/parsing/statement_table.h"

#include <array>

#include "motor/language/parsing/passed_over_parsers.h"

namespace motor {

namespace {

constexpr std::array kStatements = {
    StatementRule{"open", "table", nullptr, parseOpenTable},
    StatementRule{"open", "window", nullptr, parseOpenWindow},
    StatementRule{"close", "table", nullptr, parseCloseTable},
    StatementRule{"close", "all", nullptr, parseCloseAll},
    StatementRule{"close", "window", nullptr, parseCloseWindow},
    StatementRule{"map", "from", nullptr, parseMapFrom},
    StatementRule{"set", "map", nullptr, parseSetMap},
    StatementRule{"set", "window", nullptr, parseSetWindow},
    StatementRule{"set", "application", "window", parseSetApplicationWindow},
    StatementRule{"set", "next", "document", parseSetNextDocument},
    StatementRule{"set", "coordsys", nullptr, parseSetCoordSys},
    StatementRule{"set", "distance", nullptr, parseSetDistanceUnits},
    StatementRule{"set", "area", nullptr, parseSetAreaUnits},
    StatementRule{"set", "paper", nullptr, parseSetPaperUnits},
    StatementRule{"set", "format", nullptr, parseSetFormat},
    StatementRule{"set", "legend", nullptr, parseSetLegend},
    StatementRule{"set", "shade", nullptr, parseSetShade},
    StatementRule{"add", "map", nullptr, parseAddMap},
    StatementRule{"add", "column", nullptr, parseAddColumn},
    StatementRule{"remove", "map", nullptr, parseRemoveMap},
    StatementRule{"shade", nullptr, nullptr, parseShade},
    StatementRule{"select", nullptr, nullptr, parseSelectStatement},
    StatementRule{"fetch", nullptr, nullptr, parseFetch},
    StatementRule{"create", "menu", nullptr, parseCreateMenu},
    StatementRule{"create", "buttonpad", nullptr, parseCreateButtonPad},
    StatementRule{"alter", "buttonpad", nullptr, parseAlterButtonPad},
    StatementRule{"create", "legend", nullptr, parseCreateLegend},
    StatementRule{"create", "cartographic", "legend", parseCreateCartographicLegend},
    StatementRule{"create", "point", nullptr, parseCreatePoint},
    StatementRule{"create", "line", nullptr, parseCreateLine},
    StatementRule{"create", "pline", nullptr, parseCreatePolyline},
    StatementRule{"create", "region", nullptr, parseCreateRegion},
    StatementRule{"create", "rect", nullptr, parseCreateRectangle},
    StatementRule{"create", "roundrect", nullptr, parseCreateRoundedRectangle},
    StatementRule{"create", "ellipse", nullptr, parseCreateEllipse},
    StatementRule{"create", "arc", nullptr, parseCreateArc},
    StatementRule{"create", "text", nullptr, parseCreateText},
    StatementRule{"run", "menu", "command", parseRunMenuCommand},
    StatementRule{"run", "application", nullptr, parseRunApplication},
    StatementRule{"run", "command", nullptr, parseRunCommand},
    StatementRule{"end", "mapinfo", nullptr, parseEndSession},
    StatementRule{"dim", nullptr, nullptr, parseDim},
    StatementRule{"undim", nullptr, nullptr, parseUndim},
};

constexpr std::array kPassedOver = {
    PassedOverRule{"browse", nullptr, readBrowse},
    PassedOverRule{"layout", nullptr, readLayout},
    PassedOverRule{"graph", nullptr, readGraph},
    PassedOverRule{"create", "frame", readCreateFrame},
    PassedOverRule{"set", "layout", readSetLayout},
    PassedOverRule{"set", "browse", readSetBrowse},
    PassedOverRule{"set", "graph", readSetGraph},
    PassedOverRule{"set", "printersettings", readSetPrinterSettings},
    PassedOverRule{"set", "style", readSetStyle},
    PassedOverRule{"set", "resolution", readSetResolution},
    PassedOverRule{"set", "progressbars", readSetProgressBars},
    PassedOverRule{"set", "cartographic", readSetCartographicLegend},
    PassedOverRule{"set", "digitizer", readSetDigitizer},
    PassedOverRule{"reload", "symbols", readReloadSymbols},
    PassedOverRule{"print", nullptr, readPrint},
};

constexpr std::array kRefused = {
    RefusedRule{"save", nullptr},     RefusedRule{"commit", nullptr},  RefusedRule{"rollback", nullptr},
    RefusedRule{"insert", nullptr},   RefusedRule{"update", nullptr},  RefusedRule{"delete", nullptr},
    RefusedRule{"drop", nullptr},     RefusedRule{"pack", nullptr},    RefusedRule{"alter", "table"},
    RefusedRule{"alter", "object"},   RefusedRule{"alter", "map"},     RefusedRule{"create", "table"},
    RefusedRule{"create", "index"},   RefusedRule{"create", "map"},    RefusedRule{"create", "object"},
    RefusedRule{"create", "grid"},    RefusedRule{"rename", nullptr},  RefusedRule{"register", nullptr},
    RefusedRule{"unlink", nullptr},   RefusedRule{"link", nullptr},    RefusedRule{"export", nullptr},
    RefusedRule{"import", nullptr},   RefusedRule{"kill", nullptr},    RefusedRule{"open", "file"},
    RefusedRule{"close", "file"},     RefusedRule{"put", nullptr},     RefusedRule{"write", nullptr},
    RefusedRule{"printwin", nullptr}, RefusedRule{"run", "program"},   RefusedRule{"declare", nullptr},
    RefusedRule{"include", nullptr},  RefusedRule{"server", nullptr},  RefusedRule{"ddeexecute", nullptr},
    RefusedRule{"ddepoke", nullptr},  RefusedRule{"objects", nullptr}, RefusedRule{"geocode", nullptr},
};

}  // namespace

std::span<const StatementRule> statementRules() { return kStatements; }
std::span<const PassedOverRule> passedOverRules() { return kPassedOver; }
std::span<const RefusedRule> refusedRules() { return kRefused; }

}  // namespace motor
