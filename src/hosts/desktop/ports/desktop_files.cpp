#include "hosts/desktop/ports/desktop_files.h"

namespace desktop {

std::string DesktopFiles::lookUp(const std::string& path) {
  if (!path.starts_with(kDesktopFolder)) return files_.lookUp(path);
  const KnownProgram* program = programOfPath(path);
  const bool there = program != nullptr && programs_.has(program->stand);
  return there ? std::string(program->fileName) : "";
}

}  // namespace desktop
