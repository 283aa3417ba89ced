#pragma once

#include <optional>

#include "motor/session/window_port.h"
#include "wire/conversation.h"

namespace relay {

// The windows of a session, which the other side has. Nobody hears of it when the other side is gone.
class RemoteWindows : public motor::WindowPort {
 public:
  // The conversation outlives this.
  explicit RemoteWindows(wire::Conversation& conversation) : conversation_(conversation) {}

  // A map window without a map of ours; gives its handle.
  [[nodiscard]] std::int64_t open(std::int32_t id, int width, int height);

  [[nodiscard]] std::int64_t openMap(motor::MapWindow& window) override;
  void closeMap(motor::MapWindow& window) override;
  void mapChanged(motor::MapWindow& window) override;
  void resize(motor::MapWindow& window, int width, int height) override;
  void maximize(motor::MapWindow& window) override;
  void showLegend(motor::MapWindow& window, std::int64_t parent, int x, int y) override;
  void hideLegend() override;
  [[nodiscard]] std::int64_t legendHandle() override { return legend_; }
  [[nodiscard]] bool command(motor::MapWindow& /*window*/, int /*code*/) override { return false; }

  // The window whose legend is shown, or null.
  [[nodiscard]] motor::MapWindow* legendOf() const { return legendOf_; }
  void forgetLegend();

 private:
  // The number that the other side answers with, or 0.
  std::int64_t tell(const wire::Fields& what);

  wire::Conversation& conversation_;
  std::int64_t legend_ = 0;
  motor::MapWindow* legendOf_ = nullptr;
};

}  // namespace relay
