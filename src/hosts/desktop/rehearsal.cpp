#include "hosts/desktop/rehearsal.h"

#include <exception>

#include "motor/drawing/map_image.h"
#include "motor/session/headless_windows.h"

namespace desktop {

void rehearse(const std::string& workspace, const motor::SessionOptions& options) noexcept {
  constexpr QSize kSize(320, 240);
  try {
    motor::HeadlessWindows windows(kSize.width(), kSize.height());
    motor::Session session(windows, options);
    session.run("run application \"" + workspace + "\"");
    for (const motor::MapWindow* window : session.mapWindows()) {
      static_cast<void>(motor::renderMap(window->map(), kSize, 1));
    }
  } catch (const std::exception&) {  // as promised: the program's own opening tells
  }
}

}  // namespace desktop
