#include "motor/window/qt_windows.h"

#include <QPrintDialog>
#include <QPrinter>

#include "motor/session/map_view.h"
#include "motor/window/map_printing.h"

namespace motor {

namespace {

constexpr int kPrint = 112;
constexpr int kViewEntireLayer = 807;

void askAndPrint(const Map& map, QWidget* parent) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle(QStringLiteral("Imprimir el mapa"));
  if (dialog.exec() == QDialog::Accepted) printMap(printer, map);
}

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
  switch (code) {
    case kPrint:
      askAndPrint(window.map(), widgetOf(window));
      return true;
    case kViewEntireLayer:
      showEntire(window.map());
      window.changed();
      return true;
    default:
      return false;
  }
}

}  // namespace motor
