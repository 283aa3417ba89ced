#pragma once

#include <span>

#include "motor/language/parsing/clauses.h"
#include "motor/language/parsing/statement_parsers.h"

// What the parser goes by, and what the manual lists. A statement's words are in lower case, a blank between two.
namespace motor {

struct StatementRule {
  const char* words;
  StatementParser parse;
  const char* form;            // what follows the words, for the manual
  ClauseEntries (*clauses)();  // null: the form says all
};

// All statements that are read in full. Of two rules that fit, the one that stands first counts.
[[nodiscard]] std::span<const StatementRule> statementRules();

// A statement that is understood and passed over.
struct PassedOverRule {
  const char* words;
  void (*read)(TokenStream& stream);
};

// A statement that is only known by its words and read up to the next one.
struct RefusedRule {
  const char* words;
  const char* reason;  // what is not allowed, as the user is told
};

// What only concerns printing set-up, floating tool windows, layouts and browsers: nothing happens.
[[nodiscard]] std::span<const PassedOverRule> passedOverRules();

// What writes, deletes, starts a program or loads a library: an error when it is run.
[[nodiscard]] std::span<const RefusedRule> refusedRules();

}  // namespace motor
