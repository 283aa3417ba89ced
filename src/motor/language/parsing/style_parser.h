#pragma once

#include "motor/language/parsing/token_stream.h"
#include "motor/language/style_clause.h"

namespace motor {

// Pen (...) and the like when one comes next.
[[nodiscard]] std::optional<StyleClause> acceptStyleClause(TokenStream& stream);

// The clause of one kind, whose word has to come next.
[[nodiscard]] StyleClause parseStyleClause(TokenStream& stream, StyleClause::Kind kind);

// The clause whose word was read last.
[[nodiscard]] StyleClause parseStyleArguments(TokenStream& stream);

// All style clauses that come next, maybe none.
[[nodiscard]] StyleList parseStyleList(TokenStream& stream);

// Puts a clause into its place of the list.
void addStyle(StyleList& list, StyleClause clause);

}  // namespace motor
