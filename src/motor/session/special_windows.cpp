#include "motor/session/special_windows.h"

#include <algorithm>
#include <array>
#include <string>

#include "motor/session/session_state.h"

namespace motor {
namespace {

struct SpecialWindow {
  const char* name;
  int code;
};

constexpr std::array<SpecialWindow, 11> kWindows{{{"help", 1001},
                                                  {"mapbasic", 1002},
                                                  {"message", 1003},
                                                  {"toolpicker", 1004},
                                                  {"penpicker", 1005},
                                                  {"symbolpicker", 1006},
                                                  {"ruler", kRulerWindow},
                                                  {"info", 1008},
                                                  {"legend", kLegendWindow},
                                                  {"statistics", 1010},
                                                  {"mapinfo", 1011}}};

constexpr int kRulerTool = 1710;

}  // namespace

int specialWindowCode(std::string_view name) {
  for (const SpecialWindow& window : kWindows) {
    if (name == window.name) return window.code;
  }
  throw EngineError("no hay ninguna ventana «" + std::string(name) + "»");
}

bool isSpecialWindow(int code) {
  return std::any_of(kWindows.begin(), kWindows.end(), [code](const SpecialWindow& w) { return w.code == code; });
}

bool isSpecialWindowOpen(const SessionState& session, int code) {
  if (code == kLegendWindow) return session.legend.open;
  return code == kRulerWindow && session.toolbox.tool().command == kRulerTool;
}

}  // namespace motor
