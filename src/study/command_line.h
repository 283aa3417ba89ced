#pragma once

#include <iosfwd>
#include <span>
#include <string>

namespace study {

// Runs the program `study` with its arguments (without its own name): progress goes to `out`, faults to `err`. Returns
// the exit code: 0 done (without arguments: the usage was printed), 1 a fault, or no such command; 128 and a signal's
// number more: it was interrupted, and what it had begun is removed.
int run(std::span<const std::string> arguments, std::ostream& out, std::ostream& err);

}  // namespace study
