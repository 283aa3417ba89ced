#pragma once

#include <string_view>

namespace motor {

class SessionState;

// The codes by which WindowInfo and WindowID know the windows that are no documents.
inline constexpr int kRulerWindow = 1007;
inline constexpr int kLegendWindow = 1009;

// The code of a special window by its name in lower case ("legend", "ruler", ...). Throws EngineError for another name.
[[nodiscard]] int specialWindowCode(std::string_view name);
[[nodiscard]] bool isSpecialWindow(int code);

// Whether a special window is open: the legend when it is shown, the ruler while its tool is current.
[[nodiscard]] bool isSpecialWindowOpen(const SessionState& session, int code);

}  // namespace motor
