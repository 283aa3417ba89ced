#pragma once

#include <cpl_error.h>

namespace study {

// While it lives, what the map library complains about on this thread is not printed: it can be asked for as the last
// error, which is none at first.
class QuietErrors {
 public:
  QuietErrors() {
    CPLPushErrorHandler(CPLQuietErrorHandler);
    CPLErrorReset();
  }
  ~QuietErrors() { CPLPopErrorHandler(); }
  QuietErrors(const QuietErrors&) = delete;
  QuietErrors& operator=(const QuietErrors&) = delete;
};

}  // namespace study
