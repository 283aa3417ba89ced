#pragma once

#include <cmath>

#include "forms/control.h"
#include "hosts/windows/win32/windows_h.h"

namespace windows {

inline constexpr double kUsualDots = USER_DEFAULT_SCREEN_DPI;

// How large a window draws: by the resolution of its monitor, and smaller than usual where that has little room.
class Scale {
 public:
  // `dots` to an inch; `share` of the usual size.
  explicit Scale(double dots = kUsualDots, double share = 1) : factor_(dots / kUsualDots * share) {}

  // A usual length, one of 96 to an inch.
  [[nodiscard]] int of(double pixels) const { return static_cast<int>(std::lround(pixels * factor_)); }
  [[nodiscard]] float exact(double pixels) const { return static_cast<float>(pixels * factor_); }

  [[nodiscard]] int pixels(forms::Twips twips) const { return of(twips / kTwipsPerPixel); }
  [[nodiscard]] forms::Twips twips(int pixels) const { return pixels * kTwipsPerPixel / factor_; }

  // Where a control stands in its container. Edges are rounded, not sizes: neighbours in the model touch on the screen.
  [[nodiscard]] RECT rectOf(const forms::Control& control) const {
    return {pixels(control.left()), pixels(control.top()), pixels(control.left() + control.width()),
            pixels(control.top() + control.height())};
  }

  [[nodiscard]] bool operator==(const Scale&) const = default;

 private:
  static constexpr double kTwipsPerPixel = 15;
  double factor_;
};

[[nodiscard]] inline int widthOf(const RECT& rect) { return rect.right - rect.left; }
[[nodiscard]] inline int heightOf(const RECT& rect) { return rect.bottom - rect.top; }

}  // namespace windows
