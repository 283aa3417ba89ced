#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <map>

namespace motor {

// The handles under which widgets are known outside the toolkit: numbers that mean nothing else.
class WidgetHandles {
 public:
  // A widget's handle, the same at every call; never 0.
  [[nodiscard]] std::int64_t handleOf(QWidget& widget);
  // The widget of a handle; null for one that was never given out or whose widget is gone.
  [[nodiscard]] QWidget* widget(std::int64_t handle) const;

 private:
  std::map<std::int64_t, QPointer<QWidget>> widgets_;
  std::int64_t last_ = 65536;  // handles are told apart from small counts at a glance
};

}  // namespace motor
