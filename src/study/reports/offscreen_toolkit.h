#pragma once

#include <memory>

class QGuiApplication;

namespace study::reports {

// Reports are painted by a toolkit, which needs an application object. While this exists there is one, without a
// screen; where the program has one already, that is used. Belongs into the main function, before reports are written.
class OffscreenToolkit {
 public:
  OffscreenToolkit();
  ~OffscreenToolkit();
  OffscreenToolkit(const OffscreenToolkit&) = delete;
  OffscreenToolkit& operator=(const OffscreenToolkit&) = delete;

 private:
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace study::reports
