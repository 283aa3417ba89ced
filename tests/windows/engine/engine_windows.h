#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "hosts/windows/win32/windows_h.h"
#include "wire/fields.h"

namespace testengine {

// The windows of one engine: maps in the window that the program told, the legend in front of it. They show the
// pictures that whoever has the maps is asked for.
class EngineWindows {
 public:
  using Ask = std::function<wire::Fields(const wire::Fields& question)>;

  // `ask` is asked "picture", "legendpicture", "resized", "clicked" and "legendclosed"; it may fail with
  // std::runtime_error.
  explicit EngineWindows(Ask ask) : ask_(std::move(ask)) {}
  ~EngineWindows();
  EngineWindows(const EngineWindows&) = delete;
  EngineWindows& operator=(const EngineWindows&) = delete;

  // New maps lie in this window from here on.
  void setApplicationWindow(HWND window) { application_ = window; }

  // What the maps' owner wants done; what it is to be answered, or nothing where it wants something else.
  [[nodiscard]] wire::Fields handle(const wire::Fields& wish);

  // The map window opened last, or null.
  [[nodiscard]] HWND front() const { return front_; }

 private:
  struct Surface {
    EngineWindows& owner;
    HWND window = nullptr;
    bool isLegend = false;
    bool isStale = true;
    SIZE size{};
    std::string pixels;
  };

  static LRESULT CALLBACK handleMessage(HWND window, UINT message, WPARAM wide, LPARAM large);
  HWND openMap(int width, int height);
  HWND showLegend(HWND parent, int x, int y);
  void hideLegend();
  void remember(HWND window, bool isLegend);
  void refresh(HWND window);
  static void fillParent(HWND window);
  static void paint(Surface& surface);
  static void fetchPicture(Surface& surface);
  // Asks and lets whatever goes wrong be.
  wire::Fields tryAsk(const wire::Fields& question) const;

  Ask ask_;
  HWND application_ = nullptr;
  HWND front_ = nullptr;
  HWND legend_ = nullptr;
  std::map<HWND, std::unique_ptr<Surface>> surfaces_;
};

}  // namespace testengine
