#pragma once

#include <string>

namespace platform {

// Message box styles, to be added up: buttons and icon.
inline constexpr int kOkOnly = 0;
inline constexpr int kYesNo = 4;
inline constexpr int kCritical = 16;
inline constexpr int kQuestion = 32;
inline constexpr int kExclamation = 48;
inline constexpr int kInformation = 64;

enum class Button { ok = 1, yes = 6, no = 7 };

class Messages {
 public:
  virtual ~Messages() = default;

  // Shows a message box and waits for its answer.
  virtual Button show(const std::string& text, int style, const std::string& title) = 0;
};

}  // namespace platform
