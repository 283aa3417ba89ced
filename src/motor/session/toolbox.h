#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace motor {

// The standard tools that a map window has at work, by their menu command codes.
namespace tools {
inline constexpr int kSelect = 1701;
inline constexpr int kGrabber = 1702;
inline constexpr int kZoomIn = 1705;
inline constexpr int kZoomOut = 1706;
inline constexpr int kInfo = 1707;
inline constexpr int kLabel = 1708;
inline constexpr int kRuler = 1710;
inline constexpr int kDragMap = 1734;
}  // namespace tools

// What a button of the program's own lets the user draw.
namespace draw_modes {
inline constexpr int kCircle = 30;
inline constexpr int kEllipse = 31;
inline constexpr int kRectangle = 32;
inline constexpr int kLine = 33;
inline constexpr int kPoint = 34;
inline constexpr int kPolygon = 35;
inline constexpr int kPolyline = 36;
}  // namespace draw_modes

// The tool in the user's hand on a map: a standard one, or a button of the program's own.
struct Tool {
  int command = tools::kSelect;  // 0 for a button of the program's own
  int buttonId = 0;              // of such a button
  int drawMode = draw_modes::kPoint;
  int cursor = 0;

  bool operator==(const Tool&) const = default;
};

// An entry of the map's shortcut menu.
struct MenuEntry {
  std::string text;    // with "&" before the access key
  int command = 0;     // a standard command to run, or 0
  std::string method;  // the callback method to call, or ""
  int id = 0;          // as written, or else the entry's place in its menu, from 1
};

// A tool button of the program's own.
struct ToolButton {
  int id = 0;
  int drawMode = draw_modes::kPoint;
  int cursor = 0;
  std::string method;  // the callback method, or ""
};

// The menus and tool buttons of a session, and the tool that is current. Titles match without regard to case.
class Toolbox {
 public:
  Toolbox();

  // The map's shortcut menu is the one with id 17 or the name "MapperShortcut"; it starts without entries.
  void createMenu(std::string_view name, int id, std::vector<MenuEntry> entries);
  [[nodiscard]] const std::vector<MenuEntry>& shortcutMenu() const { return shortcutMenu_; }

  // Replaces a pad of the same title.
  void createPad(std::string_view title, std::vector<ToolButton> buttons);
  // The four standard pads and those created. Throws EngineError when there is none of this title or number.
  [[nodiscard]] std::vector<ToolButton>& pad(std::string_view title);
  [[nodiscard]] std::vector<ToolButton>& pad(int number);
  void destroyPad(std::string_view title);

  // Of several buttons with this id the newest, of the pad that was created last; null when there is none.
  [[nodiscard]] const ToolButton* findButton(int id) const;
  // The same; throws EngineError for an id that no button has.
  [[nodiscard]] const ToolButton& button(int id) const;

  [[nodiscard]] const Tool& tool() const { return tool_; }
  void choose(const Tool& tool) { tool_ = tool; }

 private:
  struct Pad {
    std::string title;  // in lower case
    std::vector<ToolButton> buttons;
  };

  std::vector<MenuEntry> shortcutMenu_;
  std::vector<Pad> pads_;  // the newest last
  Tool tool_;
};

}  // namespace motor
