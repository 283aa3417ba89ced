#include "hosts/windows/long_work.h"

#include <utility>

#include "hosts/windows/win32/window_class.h"

namespace windows {
namespace {

constexpr DWORD kMoment = 200;  // milliseconds that nobody gets impatient in
constexpr DWORD kAtOnce = 50;   // between calls

bool isPress(const MSG& message) {
  switch (message.message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
      return true;
    case WM_KEYDOWN:
      return !isOfClass(message.hwnd, WC_EDITW);
    default:
      return false;
  }
}

}  // namespace

// Calls that follow one another at once are one piece of work: nothing that waited was handled between them.
bool LongWork::end(DWORD now) {
  if (!begin_) return false;
  const Span span{*std::exchange(begin_, std::nullopt), now};
  const bool goesOn = last_ && span.begin - last_->end <= kAtOnce;
  const bool isLong = span.length() >= kMoment;
  if (isLong) last_ = {goesOn ? last_->begin : span.begin, now};
  return isLong || goesOn;
}

// The clock starts anew every seven weeks: only differences say what was first.
bool LongWork::covers(const MSG& message) const {
  return last_ && message.time - last_->begin <= last_->length() && isPress(message);
}

}  // namespace windows
