#include "motor/window/widget_handles.h"

namespace motor {

std::int64_t WidgetHandles::handleOf(QWidget& widget) {
  std::erase_if(widgets_, [](const auto& entry) { return entry.second.isNull(); });
  for (const auto& [handle, known] : widgets_) {
    if (known == &widget) return handle;
  }
  last_ += 2;
  widgets_.emplace(last_, &widget);
  return last_;
}

QWidget* WidgetHandles::widget(std::int64_t handle) const {
  const auto found = widgets_.find(handle);
  return found == widgets_.end() ? nullptr : found->second.data();
}

}  // namespace motor
