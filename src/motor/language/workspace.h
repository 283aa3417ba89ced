#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "motor/language/passed_over.h"
#include "motor/language/statement.h"

namespace motor {

// A workspace file: its header lines and its statements.
struct Workspace {
  int version = 0;
  std::string charset;  // as written after !Charset
  std::vector<Statement> statements;
  std::vector<PassedOverPart> passedOver;  // what of the statements has no effect
};

// From the file's bytes, in the charset its header names. Throws LanguageError when the file is no workspace, its
// charset is not known or a statement is not understood; lines count from the file's first.
[[nodiscard]] Workspace parseWorkspace(std::string_view bytes);

}  // namespace motor
