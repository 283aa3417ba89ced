#pragma once

#include <variant>

#include "motor/language/statements/add_column.h"
#include "motor/language/statements/button_pad.h"
#include "motor/language/statements/close_table.h"
#include "motor/language/statements/create_menu.h"
#include "motor/language/statements/create_object.h"
#include "motor/language/statements/fetch.h"
#include "motor/language/statements/inert.h"
#include "motor/language/statements/legend.h"
#include "motor/language/statements/map_from.h"
#include "motor/language/statements/map_layers.h"
#include "motor/language/statements/open_table.h"
#include "motor/language/statements/run.h"
#include "motor/language/statements/select.h"
#include "motor/language/statements/set_map.h"
#include "motor/language/statements/set_session.h"
#include "motor/language/statements/shade.h"
#include "motor/language/statements/variable.h"
#include "motor/language/statements/window.h"

namespace motor {

// Every kind of statement. Each has the `position` of its first word.
using Statement =
    std::variant<OpenTable, CloseTable, CloseAll, MapFrom, SetMap, AddMapLayer, RemoveMapLayer, SetWindow, OpenWindow,
                 CloseWindow, SetApplicationWindow, SetNextDocument, CreateMenu, CreateButtonPad, AlterButtonPad,
                 RunMenuCommand, RunApplication, RunCommand, EndSession, SetCoordSys, SetUnits, SetFormat,
                 SelectStatement, Fetch, Shade, SetShade, SetLegend, CreateLegend, CreateCartographicLegend, AddColumn,
                 CreateObject, Dim, Undim, Assignment, PassedOver, Refused>;

}  // namespace motor
