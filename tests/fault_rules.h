#pragma once

#include <string>

#include "scenario.h"

// What a handler does when a call to the map engine fails, as its trap says: ends silently, shows the failure's
// description, or, while a workspace opens, gives the engine up with a message of its own. Told by what the transcript
// shows.
namespace scenarios {

// The description of the failures that are let happen.
inline constexpr const char* kFaultText = "fallo de prueba";

// What is wrong with a transcript that holds such a failure, with the lines concerned; "" when all is as it must be.
[[nodiscard]] std::string complaintAbout(const Lines& transcript);

}  // namespace scenarios
