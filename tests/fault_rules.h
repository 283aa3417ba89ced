#pragma once

#include <string>

#include "scenario.h"

// What a handler does when a call fails that goes to the map engine, to the machine (registry, files, programs), to the
// desktop's windows or to a dialog, as its trap says: ends silently, shows the failure's description, or, while a
// workspace opens, gives it up with a message of its own. Told by what the transcript shows.
namespace scenarios {

// The description of the failures that are let happen.
inline constexpr const char* kFaultText = "fallo de prueba";

// The number of all failures but the engine's, the registry's statuses among them.
inline constexpr int kMachineFault = 75;

// Whether the line is the mark of the failure that was let happen: an error line, or a registry call's own status.
[[nodiscard]] bool isFault(const std::string& line);

// What is wrong with a transcript that holds such a failure, with the lines concerned; "" when all is as it must be.
[[nodiscard]] std::string complaintAbout(const Lines& transcript);

}  // namespace scenarios
