#pragma once

#include <functional>
#include <string>

namespace study {

// Hears of each step of a long work as it begins, in words for the person at the terminal: "Reading the zones". An
// empty text tells that the work goes on. May throw, to end it. May be empty itself.
using Progress = std::function<void(const std::string& step)>;

}  // namespace study
