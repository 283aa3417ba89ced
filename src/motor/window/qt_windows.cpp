#include "motor/window/qt_windows.h"

#include <QCoreApplication>

#include "motor/window/dialogs/layer_chooser.h"
#include "motor/window/dialogs/layer_control.h"
#include "motor/window/printing/print_preview.h"

namespace motor {

namespace {

// The title of the window that a map lies in, or else the application's name.
QString applicationTitle(const QWidget& map) {
  const QString title = map.window()->windowTitle();
  return title.isEmpty() ? QCoreApplication::applicationName() : title;
}

// Dialogs over a map. None of them keeps whoever asked for it waiting, and all go with the map.

void askAndPrint(MapWidget& map) {
  const MapWindow& window = *map.mapWindow();
  auto* dialog = new PrintPreview(window.map(), pageTexts(window, applicationTitle(map), QDate::currentDate()), &map);
  dialog->open();
}

void chooseLayer(MapWidget& map) { (new LayerChooser(map))->open(); }

void controlLayers(MapWidget& map) { (new LayerControl(map))->open(); }

struct Command {
  int code;
  void (*show)(MapWidget& map);
};

constexpr Command kCommands[] = {{112, askAndPrint}, {801, controlLayers}, {807, chooseLayer}};

}  // namespace

QtWindows::QtWindows(WidgetHandles& handles) : handles_(handles) {}

QtWindows::~QtWindows() {
  hideLegend();
  for (const auto& [window, widget] : widgets_) delete widget.data();
}

MapWidget* QtWindows::widgetOf(const MapWindow& window) const {
  const auto found = widgets_.find(&window);
  return found == widgets_.end() ? nullptr : found->second.data();
}

std::int64_t QtWindows::openMap(MapWindow& window) {
  // Owned through the pointer that closeMap and the destructor delete, or by the parent that it is given.
  QPointer<MapWidget> widget = new MapWidget(window);
  widget->resize(window.map().pixelWidth, window.map().pixelHeight);
  widgets_[&window] = widget;
  return handles_.handleOf(*widget);
}

// The widget may be in the middle of reporting a click, so it goes when that is done.
void QtWindows::closeMap(MapWindow& window) {
  if (legend_ != nullptr && legend_->shows(window)) hideLegend();
  if (MapWidget* widget = widgetOf(window)) {
    widget->detach();
    widget->hide();
    widget->deleteLater();
  }
  widgets_.erase(&window);
}

void QtWindows::mapChanged(MapWindow& window) {
  if (MapWidget* widget = widgetOf(window)) widget->refresh();
  if (legend_ != nullptr && legend_->shows(window)) legend_->refresh();
}

void QtWindows::resize(MapWindow& window, int width, int height) {
  if (MapWidget* widget = widgetOf(window)) {
    widget->resize(width, height);
    widget->reportSize();
  }
}

void QtWindows::maximize(MapWindow& window) {
  if (MapWidget* widget = widgetOf(window)) widget->fillParent();
}

void QtWindows::showLegend(MapWindow& window, std::int64_t parent, int x, int y) {
  QWidget* holder = handles_.widget(parent);
  if (legend_ == nullptr || !legend_->shows(window) || legend_->parentWidget() != holder) {
    hideLegend();
    legend_ = new LegendWindow(window, holder);  // deleted by hideLegend or by its parent
  }
  legend_->placeAt(holder == nullptr ? QPoint(x, y) : holder->mapToGlobal(QPoint(x, y)));
  legend_->show();
}

void QtWindows::hideLegend() { delete legend_.data(); }

std::int64_t QtWindows::legendHandle() { return legend_ == nullptr ? 0 : handles_.handleOf(*legend_); }

bool QtWindows::command(MapWindow& window, int code) {
  MapWidget* map = widgetOf(window);
  for (const Command& command : kCommands) {
    if (map == nullptr || command.code != code) continue;
    command.show(*map);
    return true;
  }
  return false;
}

}  // namespace motor
