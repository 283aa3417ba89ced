#include "hosts/desktop/ports/known_programs.h"

#include "text/utf8.h"

namespace desktop {

const KnownProgram* programOfPath(const std::string& path) {
  const std::string name = path.substr(path.find_last_of("\\/") + 1);
  for (const KnownProgram& program : kKnownPrograms) {
    if (text::equalsIgnoringCase(name, program.executable)) return &program;
  }
  return nullptr;
}

}  // namespace desktop
