#include "motor/language/expression.h"

#include "motor/language/expressions/aggregate.h"
#include "motor/language/statements/select.h"

namespace motor {

bool Scope::related(SpatialRelation /*relation*/, const ObjectPtr& /*left*/, const ObjectPtr& /*right*/,
                    Position position) const {
  throw LanguageError(position, "obj", "los objetos sólo se comparan en Select");
}

Value Scope::aggregate(const Aggregate& aggregate) const {
  throw LanguageError(aggregate.position(), "función de grupo", "sólo tiene sentido entre las columnas de Select");
}

bool Scope::hides(const NameReference& /*constant*/) const { return false; }

const ValueSet& Scope::values(const SelectStatement& select) const {
  throw LanguageError(select.position, "Select", "sólo tiene sentido en el Where de otro Select");
}

}  // namespace motor
