#pragma once

#include <functional>

#include "text/failure.h"

namespace desktop::testing {

// The number of the failure that the action ends with; 0 where it goes well.
inline int failureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Failure& failure) {
    return failure.number();
  }
  return 0;
}

}  // namespace desktop::testing
