#pragma once

#include <stdexcept>

namespace study {

// The study cannot be made or written; what() tells the person at the terminal why.
struct StudyError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace study
