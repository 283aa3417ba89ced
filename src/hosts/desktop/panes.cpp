#include "hosts/desktop/panes.h"

#include <algorithm>
#include <iterator>

#include "hosts/desktop/focus_order.h"
#include "hosts/desktop/views/link_label.h"
#include "hosts/desktop/views/tab_pages.h"
#include "hosts/desktop/views/tab_row.h"

namespace desktop {
namespace {

// What the widget's part of the window is known by: the child of the window that it lies in; null for the menu. A
// palette is one part.
const QWidget* paneOf(const QWidget& widget, const QWidget& window) {
  if (window.parentWidget() != nullptr) return &window;
  if (dynamic_cast<const LinkLabel*>(&widget) != nullptr) return nullptr;
  const QWidget* at = &widget;
  while (at->parentWidget() != nullptr && at->parentWidget() != &window) at = at->parentWidget();
  return at;
}

// The windows between which the keyboard goes: a working window, then its palettes.
std::vector<const QWidget*> family(const QWidget& window) {
  const QWidget* owner = window.parentWidget() == nullptr ? &window : window.parentWidget()->window();
  std::vector<const QWidget*> all{owner};
  for (const QWidget* child : owner->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (child->isWindow() && child->isVisible() && !readingOrder(*child).empty()) all.push_back(child);
  }
  return all;
}

}  // namespace

std::vector<QWidget*> paneStarts(const QWidget& window) {
  std::vector<QWidget*> starts;
  for (QWidget* each : readingOrder(window)) {
    const QWidget* pane = paneOf(*each, window);
    const auto isSame = [&](const QWidget* start) { return paneOf(*start, window) == pane; };
    if (std::ranges::none_of(starts, isSame)) starts.push_back(each);
  }
  return starts;
}

QWidget* nextPane(const QWidget& window, const QWidget* from, bool next) {
  std::vector<QWidget*> starts;
  for (const QWidget* each : family(window)) std::ranges::copy(paneStarts(*each), std::back_inserter(starts));
  if (starts.empty()) return nullptr;
  const auto isHere = [&](const QWidget* start) {
    return from != nullptr && from->window() == &window && start->window() == &window &&
           paneOf(*start, window) == paneOf(*from, window);
  };
  const auto here = std::ranges::find_if(starts, isHere);
  if (here == starts.end()) return next ? starts.front() : starts.back();
  const auto index = static_cast<std::size_t>(here - starts.begin());
  const std::size_t step = next ? 1 : starts.size() - 1;
  return starts[(index + step) % starts.size()];
}

TabRow* headingsFor(const QWidget& window, const QWidget* from) {
  for (const QWidget* at = from; at != nullptr && at != &window; at = at->parentWidget()) {
    if (const auto* pages = dynamic_cast<const TabPages*>(at)) return pages->row();
  }
  const TabPages* largest = nullptr;
  const auto area = [](const TabPages& pages) { return pages.width() * pages.height(); };
  for (QObject* child : window.children()) {
    const auto* pages = dynamic_cast<const TabPages*>(child);
    if (pages == nullptr || !canHaveKeyboard(*pages, window)) continue;
    if (largest == nullptr || area(*pages) > area(*largest)) largest = pages;
  }
  if (largest != nullptr) return largest->row();
  return window.parentWidget() == nullptr ? nullptr : headingsFor(*window.parentWidget()->window(), nullptr);
}

}  // namespace desktop
