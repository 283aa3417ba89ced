#include "hosts/desktop/focus_order.h"

#include <QRadioButton>
#include <algorithm>
#include <iterator>
#include <tuple>

#include "hosts/desktop/views/link_label.h"
#include "hosts/desktop/views/tab_pages.h"
#include "hosts/desktop/views/tool_button.h"

namespace desktop {
namespace {

constexpr int kRow = 10;  // pixels within which tops count as one row

enum class Zone { pages, beside, menu };

struct Place {
  Zone zone;
  int top, left;  // of the widget, or of the menu entry that it hangs from
  bool hangs;
  int ownTop, ownLeft;
  int row = 0;

  [[nodiscard]] auto byTop() const { return std::tuple(zone, top); }
  [[nodiscard]] auto key() const { return std::tuple(zone, row, left, hangs, ownTop, ownLeft); }
};

struct Placed {
  Place place;
  QWidget* widget;
};

template <class Widget>
QList<Widget*> onWindow(const QWidget& window) {
  QList<Widget*> found;
  for (QObject* child : window.children()) {
    if (auto* widget = dynamic_cast<Widget*>(child)) found.append(widget);
  }
  return found;
}

const QWidget& standsIn(const QWidget& widget, const QWidget& window) {
  const QWidget* at = &widget;
  while (at->parentWidget() != &window) at = at->parentWidget();
  return *at;
}

bool isPassedBy(const QWidget& widget) {
  const auto* option = qobject_cast<const QRadioButton*>(&widget);
  if (option == nullptr || option->isChecked()) return false;
  const auto options = option->parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  return std::ranges::any_of(options, [](const QRadioButton* other) { return other->isChecked(); });
}

// Whether pages that lie over it hide the widget altogether.
bool isCovered(const QWidget& widget, const QWidget& window) {
  const QWidget& standing = standsIn(widget, window);
  const auto order = window.children();
  const auto height = order.indexOf(&standing);
  return std::ranges::any_of(onWindow<TabPages>(window), [&](const TabPages* pages) {
    return order.indexOf(pages) > height && pages->isVisibleTo(&window) &&
           pages->geometry().contains(standing.geometry());
  });
}

bool takesKeyboard(const QWidget& widget, const QWidget& window) {
  const bool byTab = (widget.focusPolicy() & Qt::TabFocus) != 0;
  return byTab && widget.focusProxy() == nullptr && canHaveKeyboard(widget, window) && !isPassedBy(widget) &&
         !isCovered(widget, window);
}

// The menu entry itself, or the one at whose lower edge the frame around `widget` begins, or null.
const QWidget* menuEntryOf(const QWidget& widget, const QWidget& window) {
  const QWidget& standing = standsIn(widget, window);
  if (dynamic_cast<const LinkLabel*>(&standing) != nullptr) return &standing;
  const QRect place = standing.geometry();
  for (const LinkLabel* entry : onWindow<LinkLabel>(window)) {
    const QRect above = entry->geometry();
    const bool touches =
        qAbs(above.bottom() - place.top()) <= kRow && above.left() <= place.right() && place.left() <= above.right();
    if (touches && dynamic_cast<const LinkLabel*>(&widget) != nullptr) return entry;
  }
  return nullptr;
}

// Where the largest pages end; everything stands left of it when there are none.
int rightEdgeOfPages(const QWidget& window) {
  const auto area = [](const TabPages* pages) { return pages->width() * pages->height(); };
  const auto all = onWindow<TabPages>(window);
  const auto largest = std::ranges::max_element(all, {}, area);
  return largest == all.end() ? window.width() : (*largest)->geometry().right();
}

Place placeOf(const QWidget& widget, const QWidget& window) {
  const QPoint own = widget.mapTo(&window, QPoint());
  if (const QWidget* entry = menuEntryOf(widget, window)) {
    const QPoint at = entry->mapTo(&window, QPoint());
    return {Zone::menu, at.y(), at.x(), entry != &widget, own.y(), own.x()};
  }
  const Zone zone = own.x() < rightEdgeOfPages(window) ? Zone::pages : Zone::beside;
  return {zone, own.y(), own.x(), false, own.y(), own.x()};
}

// Puts them in reading order. A row begins at its highest widget.
void sortByReading(std::vector<Placed>& all) {
  std::ranges::stable_sort(all, {}, [](const Placed& one) { return one.place.byTop(); });
  const Place* first = nullptr;
  int row = 0;
  for (Placed& one : all) {
    if (first == nullptr || one.place.zone != first->zone || one.place.top - first->top >= kRow) {
      first = &one.place;
      ++row;
    }
    one.place.row = row;
  }
  std::ranges::stable_sort(all, {}, [](const Placed& one) { return one.place.key(); });
}

std::vector<Placed> sorted(const QWidget& window, const std::vector<QWidget*>& widgets) {
  std::vector<Placed> all;
  for (QWidget* widget : widgets) all.push_back({placeOf(*widget, window), widget});
  sortByReading(all);
  return all;
}

// Everything that takes the keyboard, each tool button too.
std::vector<QWidget*> takers(const QWidget& window) {
  std::vector<QWidget*> found;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (takesKeyboard(*widget, window)) found.push_back(widget);
  }
  return found;
}

const ToolButton* toolOf(const Placed& placed) { return dynamic_cast<const ToolButton*>(placed.widget); }

// The end of the run of tool buttons in one row that begins here; the next place for anything else.
std::vector<Placed>::const_iterator groupEnd(std::vector<Placed>::const_iterator first,
                                             std::vector<Placed>::const_iterator end) {
  if (toolOf(*first) == nullptr) return first + 1;
  return std::find_if(first + 1, end, [&](const Placed& each) {
    return toolOf(each) == nullptr || each.place.row != first->place.row || each.place.zone != first->place.zone;
  });
}

// Where the keyboard enters a group: a button that it comes from stays the group's own place.
QWidget* stopOf(std::vector<Placed>::const_iterator first, std::vector<Placed>::const_iterator end,
                const QWidget* from) {
  const auto rank = [&](const Placed& each) {
    const ToolButton* tool = toolOf(each);
    if (tool == nullptr) return std::tuple(false, 0, false);
    return std::tuple(each.widget == from, tool->lastEntered(), tool->isCurrent());
  };
  return std::max_element(first, end, [&](const Placed& a, const Placed& b) { return rank(a) < rank(b); })->widget;
}

std::vector<QWidget*> stops(const QWidget& window, const std::vector<QWidget*>& widgets, const QWidget* from) {
  const std::vector<Placed> all = sorted(window, widgets);
  std::vector<QWidget*> order;
  for (auto first = all.cbegin(); first != all.cend();) {
    const auto end = groupEnd(first, all.cend());
    order.push_back(stopOf(first, end, from));
    first = end;
  }
  return order;
}

}  // namespace

bool canHaveKeyboard(const QWidget& widget, const QWidget& window) {
  return widget.isEnabled() && widget.isVisibleTo(&window) && widget.window() == &window;
}

std::vector<QWidget*> readingOrder(const QWidget& window) {
  return stops(window, takers(window), window.focusWidget());
}

std::vector<QWidget*> toolbarAround(const QWidget& window, const QWidget& button) {
  const std::vector<Placed> all = sorted(window, takers(window));
  for (auto first = all.cbegin(); first != all.cend();) {
    const auto end = groupEnd(first, all.cend());
    std::vector<QWidget*> group;
    std::transform(first, end, std::back_inserter(group), [](const Placed& each) { return each.widget; });
    if (std::ranges::find(group, &button) != group.end()) return group;
    first = end;
  }
  return {};
}

QWidget* nextInReadingOrder(const QWidget& window, const QWidget* from, bool next) {
  std::vector<QWidget*> all = takers(window);
  std::vector<QWidget*> order = stops(window, all, from);
  if (order.empty()) return nullptr;
  auto* start = const_cast<QWidget*>(from);
  const bool isHere = start != nullptr && start != &window && window.isAncestorOf(start);
  if (!isHere) return next ? order.front() : order.back();
  if (std::ranges::find(order, start) == order.end()) {
    all.push_back(start);
    order = stops(window, all, from);
  }
  const auto index = static_cast<std::size_t>(std::ranges::find(order, start) - order.begin());
  const std::size_t step = next ? 1 : order.size() - 1;
  return order[(index + step) % order.size()];
}

QWidget* firstChoice(const QWidget& window) {
  const std::vector<QWidget*> order = readingOrder(window);
  const auto onlyChooses = [](const QWidget* widget) { return dynamic_cast<const PointedButton*>(widget) == nullptr; };
  const auto found = std::ranges::find_if(order, onlyChooses);
  return found == order.end() ? nullptr : *found;
}

}  // namespace desktop
