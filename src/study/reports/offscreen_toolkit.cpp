#include "study/reports/offscreen_toolkit.h"

#include <QGuiApplication>
#include <array>

namespace study::reports {

namespace {

// The toolkit keeps the arguments as long as it lives.
std::array<char, 6> kProgram{"study"};
std::array<char, 10> kOption{"-platform"};
std::array<char, 10> kPlatform{"offscreen"};
std::array<char*, 4> kArguments{kProgram.data(), kOption.data(), kPlatform.data(), nullptr};
int argumentCount = 3;

}  // namespace

OffscreenToolkit::OffscreenToolkit() {
  if (QCoreApplication::instance() != nullptr) return;
  argumentCount = 3;
  kArguments = {kProgram.data(), kOption.data(), kPlatform.data(), nullptr};  // the toolkit takes out what it knows
  application_ = std::make_unique<QGuiApplication>(argumentCount, kArguments.data());
}

OffscreenToolkit::~OffscreenToolkit() = default;

}  // namespace study::reports
