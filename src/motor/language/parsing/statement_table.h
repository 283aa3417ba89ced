#pragma once

#include <span>

#include "motor/language/parsing/statement_parsers.h"

namespace motor {

// A statement by the words it begins with; without a second (third) word, that one is null.
struct StatementRule {
  const char* first;
  const char* second;
  const char* third;
  StatementParser parse;
};

// All statements that are read in full. Of two rules that fit, the one that stands first counts.
[[nodiscard]] std::span<const StatementRule> statementRules();

// A statement that is understood and passed over.
struct PassedOverRule {
  const char* first;
  const char* second;  // or null
  void (*read)(TokenStream& stream);
};

// A statement that is only known by its words and read up to the next one.
struct RefusedRule {
  const char* first;
  const char* second;  // or null
};

// What only concerns printing set-up, floating tool windows, layouts and browsers: nothing happens.
[[nodiscard]] std::span<const PassedOverRule> passedOverRules();

// What writes, deletes, starts a program or loads a library: an error when it is run.
[[nodiscard]] std::span<const RefusedRule> refusedRules();

}  // namespace motor
