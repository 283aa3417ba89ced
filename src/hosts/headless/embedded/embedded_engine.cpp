#include "hosts/headless/embedded/embedded_engine.h"

#include "text/number_text.h"

namespace headless {

namespace {

motor::SessionOptions optionsFor(const std::filesystem::path& applicationFolder) {
  return {.roots = {applicationFolder}, .decimalSign = ",", .thousandsSign = "."};
}

}  // namespace

EmbeddedEngine::EmbeddedEngine(const std::filesystem::path& applicationFolder)
    : service_(windows_, optionsFor(applicationFolder)) {}

EmbeddedEngine::EmbeddedEngine(const std::filesystem::path& applicationFolder, motor::WindowPort& windows)
    : service_(windows, optionsFor(applicationFolder)) {}

bool EmbeddedEngine::clickMap(const std::string& x, const std::string& y) {
  const auto session = service_.current();
  if (session == nullptr) return false;
  const auto windows = session->mapWindows();
  if (windows.empty()) return false;
  windows.back()->clickedAt({text::toNumber(x), text::toNumber(y)}, false, false);
  return true;
}

}  // namespace headless
