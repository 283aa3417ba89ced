#include "hosts/headless/embedded_engine.h"

#include "text/number_text.h"

namespace headless {

EmbeddedEngine::EmbeddedEngine(const std::filesystem::path& applicationFolder)
    : EmbeddedEngine(applicationFolder, windows_) {}

EmbeddedEngine::EmbeddedEngine(const std::filesystem::path& applicationFolder, motor::WindowPort& windows)
    : service_(windows, {.roots = {applicationFolder}, .decimalSign = ",", .thousandsSign = "."}) {}

bool EmbeddedEngine::clickMap(const std::string& x, const std::string& y) {
  const auto session = service_.current();
  if (session == nullptr) return false;
  const auto windows = session->mapWindows();
  if (windows.empty()) return false;
  windows.back()->clickedAt({text::toNumber(x), text::toNumber(y)}, false, false);
  return true;
}

}  // namespace headless
