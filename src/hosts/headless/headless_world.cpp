#include "hosts/headless/headless_world.h"

#include "hosts/headless/installed_programs.h"

namespace headless {

HeadlessWorld::HeadlessWorld(std::string applicationFolder, const std::optional<std::string>& registryFile,
                             EngineHost& engines)
    : applicationFolder_(std::move(applicationFolder)), engines_(engines) {
  if (registryFile) {
    registry_.read(*registryFile);
    return;
  }
  for (const InstalledProgram& program : kInstalledPrograms) {
    registry_.addText(program.key(), "Path", std::string(program.folder));
    files_.pretendFile(program.path());
  }
}

platform::Ports HeadlessWorld::ports() {
  return {engines_.engines(), windows_, registry_, files_, programs_, messages_, dialogs_, applicationFolder_};
}

}  // namespace headless
