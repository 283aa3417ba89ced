#include "motor/language/parsing/statement_table.h"

#include <array>

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
    SkippedRule{"browse", nullptr},   SkippedRule{"layout", nullptr},        SkippedRule{"graph", nullptr},
    SkippedRule{"create", "frame"},   SkippedRule{"set", "layout"},          SkippedRule{"set", "browse"},
    SkippedRule{"set", "graph"},      SkippedRule{"set", "printersettings"}, SkippedRule{"set", "style"},
    SkippedRule{"set", "resolution"}, SkippedRule{"set", "progressbars"},    SkippedRule{"set", "cartographic"},
    SkippedRule{"set", "digitizer"},  SkippedRule{"reload", "symbols"},      SkippedRule{"print", nullptr},
};

constexpr std::array kRefused = {
    SkippedRule{"save", nullptr},     SkippedRule{"commit", nullptr},  SkippedRule{"rollback", nullptr},
    SkippedRule{"insert", nullptr},   SkippedRule{"update", nullptr},  SkippedRule{"delete", nullptr},
    SkippedRule{"drop", nullptr},     SkippedRule{"pack", nullptr},    SkippedRule{"alter", "table"},
    SkippedRule{"alter", "object"},   SkippedRule{"alter", "map"},     SkippedRule{"create", "table"},
    SkippedRule{"create", "index"},   SkippedRule{"create", "map"},    SkippedRule{"create", "object"},
    SkippedRule{"create", "grid"},    SkippedRule{"rename", nullptr},  SkippedRule{"register", nullptr},
    SkippedRule{"unlink", nullptr},   SkippedRule{"link", nullptr},    SkippedRule{"export", nullptr},
    SkippedRule{"import", nullptr},   SkippedRule{"kill", nullptr},    SkippedRule{"open", "file"},
    SkippedRule{"close", "file"},     SkippedRule{"put", nullptr},     SkippedRule{"write", nullptr},
    SkippedRule{"printwin", nullptr}, SkippedRule{"run", "program"},   SkippedRule{"declare", nullptr},
    SkippedRule{"include", nullptr},  SkippedRule{"server", nullptr},  SkippedRule{"ddeexecute", nullptr},
    SkippedRule{"ddepoke", nullptr},  SkippedRule{"objects", nullptr}, SkippedRule{"geocode", nullptr},
};

}  // namespace

std::span<const StatementRule> statementRules() { return kStatements; }
std::span<const SkippedRule> passedOverRules() { return kPassedOver; }
std::span<const SkippedRule> refusedRules() { return kRefused; }

}  // namespace motor
