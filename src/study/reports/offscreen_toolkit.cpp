#include "study/reports/offscreen_toolkit.h"

#include <QGuiApplication>
#include <QString>
#include <array>

namespace study::reports {

namespace {

// The toolkit keeps the arguments as long as it lives.
std::array<char, 6> kProgram{"study"};
std::array<char, 10> kOption{"-platform"};
std::array<char, 10> kPlatform{"offscreen"};
std::array<char*, 4> kArguments{kProgram.data(), kOption.data(), kPlatform.data(), nullptr};
int argumentCount = 3;

QtMessageHandler usualHandler = nullptr;

// The toolkit asks for a folder that only a desktop has, and says so; nobody needs to know.
void passOver(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR"))) return;
  if (usualHandler != nullptr) usualHandler(type, context, message);
}

}  // namespace

OffscreenToolkit::OffscreenToolkit() {
  if (QCoreApplication::instance() != nullptr) return;
  argumentCount = 3;
  kArguments = {kProgram.data(), kOption.data(), kPlatform.data(), nullptr};  // the toolkit takes out what it knows
  usualHandler = qInstallMessageHandler(passOver);
  application_ = std::make_unique<QGuiApplication>(argumentCount, kArguments.data());
  qInstallMessageHandler(usualHandler);
}

OffscreenToolkit::~OffscreenToolkit() = default;

}  // namespace study::reports
