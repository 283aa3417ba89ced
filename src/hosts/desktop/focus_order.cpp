#include "hosts/desktop/focus_order.h"

#include <algorithm>
#include <tuple>

#include "hosts/desktop/views/link_label.h"

namespace desktop {
namespace {

constexpr int kRow = 10;  // pixels within which tops count as one row

struct Place {
  int row, left;  // of the widget, or of the menu entry that it hangs from
  bool hangs;
  int ownRow, ownLeft;

  [[nodiscard]] auto key() const { return std::tuple(row, left, hangs, ownRow, ownLeft); }
};

bool takesKeyboard(const QWidget& widget, const QWidget& window) {
  const bool byTab = (widget.focusPolicy() & Qt::TabFocus) != 0;
  return byTab && widget.focusProxy() == nullptr && widget.isEnabled() && widget.isVisibleTo(&window) &&
         widget.window() == &window;
}

// The menu entry at whose lower edge the frame around `widget` begins, or null.
const QWidget* menuEntryAbove(const QWidget& widget, const QWidget& window) {
  const QWidget* frame = widget.parentWidget();
  if (frame == nullptr || frame->parentWidget() != &window) return nullptr;
  const QRect place = frame->geometry();
  for (const LinkLabel* entry : window.findChildren<LinkLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
    const QRect above = entry->geometry();
    const bool touches =
        qAbs(above.bottom() - place.top()) <= kRow && above.left() <= place.right() && place.left() <= above.right();
    if (touches) return entry;
  }
  return nullptr;
}

Place placeOf(const QWidget& widget, const QWidget& window) {
  const QPoint own = widget.mapTo(&window, QPoint());
  Place place{own.y() / kRow, own.x(), false, own.y(), own.x()};
  if (const QWidget* entry = menuEntryAbove(widget, window)) {
    const QPoint at = entry->mapTo(&window, QPoint());
    place.row = at.y() / kRow;
    place.left = at.x();
    place.hangs = true;
  }
  return place;
}

}  // namespace

std::vector<QWidget*> readingOrder(const QWidget& window) {
  std::vector<std::pair<Place, QWidget*>> found;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (takesKeyboard(*widget, window)) found.emplace_back(placeOf(*widget, window), widget);
  }
  std::ranges::stable_sort(found, {}, [](const auto& entry) { return entry.first.key(); });
  std::vector<QWidget*> order;
  for (const auto& [place, widget] : found) order.push_back(widget);
  return order;
}

QWidget* nextInReadingOrder(const QWidget& window, const QWidget* from, bool next) {
  const std::vector<QWidget*> order = readingOrder(window);
  if (order.empty()) return nullptr;
  const auto at = std::ranges::find(order, from);
  if (at == order.end()) return next ? order.front() : order.back();
  const auto index = static_cast<std::size_t>(at - order.begin());
  const std::size_t step = next ? 1 : order.size() - 1;
  return order[(index + step) % order.size()];
}

}  // namespace desktop
