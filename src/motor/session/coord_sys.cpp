#include "motor/session/coord_sys.h"

#include "motor/session/session_state.h"

namespace motor {

CoordinateSystem coordinateSystemOf(const CoordSysClause& clause, const SessionState& session) {
  switch (clause.kind) {
    case CoordSysClause::Kind::earth:
    case CoordSysClause::Kind::nonEarth:
      return CoordinateSystem::fromClause(clause.text);
    case CoordSysClause::Kind::layout:
      return CoordinateSystem::fromClause("NonEarth Units \"in\"");
    case CoordSysClause::Kind::table:
      return session.tables.at(clause.table).table->coordinateSystem();
    case CoordSysClause::Kind::window:
      return session.windowOrFront(clause.window).map().coordinateSystem;
  }
  return {};
}

}  // namespace motor
