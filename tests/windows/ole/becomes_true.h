#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace wintest {

// Waits until something is so; false when it does not become so in half a minute.
inline bool becomesTrue(const std::function<bool()>& so) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (!so()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

}  // namespace wintest
