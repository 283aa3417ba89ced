#pragma once

#include <atomic>
#include <thread>

namespace wintest {

// Presses OK in the engine's own message box, wherever its process is, as soon as it has been open for a moment.
class EngineBox {
 public:
  EngineBox();
  ~EngineBox();
  EngineBox(const EngineBox&) = delete;
  EngineBox& operator=(const EngineBox&) = delete;

  [[nodiscard]] bool wasSeen() const { return seen_; }

 private:
  void watch();

  std::atomic<bool> seen_ = false;
  std::atomic<bool> leaving_ = false;
  std::thread thread_;
};

}  // namespace wintest
