#pragma once

#include "forms/shape.h"
#include "hosts/windows/views/control_view.h"

namespace windows {

// The place of the map: an empty sheet until the engine's window lies in it.
class PictureBoxView : public ControlView {
 public:
  PictureBoxView(forms::PictureBox& box, ViewContext& context, HWND parent);

 protected:
  [[nodiscard]] std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override;
  void paint(Canvas& canvas, UINT state) const override;
};

}  // namespace windows
