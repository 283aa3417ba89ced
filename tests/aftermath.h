#pragma once

#include <set>
#include <string>

#include "scenario.h"

// What the program does in the state in which a failed handler has left it: the next line of the script is judged.
// After a failure that took the engine away the map tabs are silent and the queries report that there is no object,
// until the tables were entered and left. After any other failure the next handler does what it does undisturbed, up to
// the first answer that the failure has changed, or to the trace of a step that the failed handler did not reach.
namespace scenarios {

// What is wrong with the block after the one with the failure; "" when all is as it must be. `undisturbed` is the
// transcript of the same script without the failure; `notDone` holds the script's lines that could not be done.
[[nodiscard]] std::string complaintAboutNext(const Lines& transcript, const Lines& undisturbed,
                                             const std::set<std::string>& notDone);

}  // namespace scenarios
