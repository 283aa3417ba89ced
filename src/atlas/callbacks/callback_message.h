#pragma once

#include <array>
#include <string>

namespace atlas {

// A callback message's fields, counted from 1: field 1 is the x and field 2 the y coordinate of the point clicked, kept
// as text. Element 0 is not used.
using CallbackFields = std::array<std::string, 9>;

[[nodiscard]] bool isCallbackMessage(const std::string& message);

// Splits what follows "MI:" at its commas. Fails with 9 at a ninth field. The walk stops at the last character: a last
// field of a single character is not read.
[[nodiscard]] CallbackFields callbackFields(const std::string& message);

}  // namespace atlas
