#pragma once

#include "hosts/desktop/ports/known_programs.h"
#include "platform/files.h"

namespace desktop {

// The machine's files, and the executables of the known programs that the desktop has.
class DesktopFiles : public platform::Files {
 public:
  // Both outlive this.
  DesktopFiles(platform::Files& files, const DesktopPrograms& programs) : files_(files), programs_(programs) {}

  [[nodiscard]] std::string lookUp(const std::string& path) override;
  [[nodiscard]] std::vector<std::string> folders(const std::string& path) override { return files_.folders(path); }
  void copy(const std::string& from, const std::string& to) override { files_.copy(from, to); }

 private:
  platform::Files& files_;
  const DesktopPrograms& programs_;
};

}  // namespace desktop
