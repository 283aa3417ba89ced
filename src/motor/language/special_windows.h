#pragma once

#include <array>
#include <string_view>

namespace motor {

// A window that is no document: the name by which statements know it, in lower case, and its code for WindowInfo and
// WindowID; 0 for one that has none.
struct SpecialWindow {
  std::string_view name;
  int code;
};

inline constexpr int kRulerWindow = 1007;
inline constexpr int kLegendWindow = 1009;

inline constexpr std::array<SpecialWindow, 13> kSpecialWindows{{{"help", 1001},
                                                                {"mapbasic", 1002},
                                                                {"message", 1003},
                                                                {"toolpicker", 1004},
                                                                {"penpicker", 1005},
                                                                {"symbolpicker", 1006},
                                                                {"ruler", kRulerWindow},
                                                                {"info", 1008},
                                                                {"legend", kLegendWindow},
                                                                {"statistics", 1010},
                                                                {"mapinfo", 1011},
                                                                {"linkinfo", 0},
                                                                {"toolbar", 0}}};

}  // namespace motor
