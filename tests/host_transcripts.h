#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scenario.h"

// The transcripts of the scenarios on hosts with a real screen.
namespace scenarios {

// The lines that every host must give alike: all but those about where windows and controls stand, which a screen of
// its own decides.
[[nodiscard]] Lines sharedLines(const Lines& transcript);

// The first line in which two transcripts differ, with those before it; "" when they do not.
[[nodiscard]] std::string firstDifference(const Lines& expected, const Lines& actual);

// Why a scenario cannot be played on a host ("desktop" or "windows"); none when it can.
[[nodiscard]] std::optional<std::string_view> whyNotOn(std::string_view host, std::string_view scenario);

}  // namespace scenarios
