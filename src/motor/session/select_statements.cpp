#include "motor/session/executors.h"
#include "motor/session/session_state.h"

namespace motor {

void execute(SessionState& session, const SelectStatement& statement) {
  const SelectContext context{session.tables, session.scope, session.coordinateSystem};
  ResultPtr rows = select(statement, context);
  const std::string name = statement.into ? statement.into->text : std::string();
  if (statement.into) session.tables.put(name, rows);
  if (statement.noSelect) return;
  session.tables.select(std::move(rows), name);
  session.allMapsChangedAbove();
}

void execute(SessionState& session, const Fetch& statement) {
  const double record = statement.record ? session.number(statement.record) : 0;
  session.tables.fetch(statement.table.text, statement.target, record);
}

}  // namespace motor
