#pragma once

#include <QPointer>
#include <map>

#include "motor/session/window_port.h"
#include "motor/window/legend_window.h"
#include "motor/window/map_widget.h"
#include "motor/window/widget_handles.h"

namespace motor {

// Map windows as real widgets. A new one is hidden and has no parent; whoever shows it puts it where it belongs.
class QtWindows : public WindowPort {
 public:
  // `handles` outlives this.
  explicit QtWindows(WidgetHandles& handles);
  ~QtWindows() override;

  [[nodiscard]] std::int64_t openMap(MapWindow& window) override;
  void closeMap(MapWindow& window) override;
  void mapChanged(MapWindow& window) override;
  void resize(MapWindow& window, int width, int height) override;
  void maximize(MapWindow& window) override;
  void showLegend(MapWindow& window, std::int64_t parent, int x, int y) override;
  void hideLegend() override;
  [[nodiscard]] std::int64_t legendHandle() override;
  [[nodiscard]] bool command(MapWindow& window, int code) override;

  // The widget of a map window, or null.
  [[nodiscard]] MapWidget* widgetOf(const MapWindow& window) const;

 private:
  WidgetHandles& handles_;
  std::map<const MapWindow*, QPointer<MapWidget>> widgets_;
  QPointer<LegendWindow> legend_;
};

}  // namespace motor
