#pragma once

#include <functional>
#include <string>

namespace study {

// Hears of each step of a long work as it begins, in words for the person at the terminal. May be empty.
using Progress = std::function<void(const std::string& step)>;

}  // namespace study
