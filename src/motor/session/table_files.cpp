#include "motor/session/table_files.h"

#include <algorithm>
#include <array>
#include <system_error>

#include "motor/language/error.h"
#include "platform/paths.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace motor {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 24> kDevices{"con",  "prn",  "aux",  "nul",  "com1", "com2", "com3",   "com4",
                                               "com5", "com6", "com7", "com8", "com9", "lpt1", "lpt2",   "lpt3",
                                               "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9", "conin$", "conout$"};

// Whatever the ending is, and blanks before it.
bool isDevice(const std::string& component) {
  std::string stem = text::lower(component.substr(0, component.find_first_of(".:")));
  stem.erase(stem.find_last_not_of(' ') + 1);
  return std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end();
}

[[noreturn]] void failUnsafe(const std::string& written) { throw EngineError("«" + written + "»: ruta no permitida"); }

// Throws EngineError for a path that may not be followed.
void refuseUnsafe(const std::string& written, const std::string& path) {
  bool unsafe = path.find('\0') != std::string::npos;
  for (const fs::path& part : text::toPath(path)) unsafe = unsafe || isDevice(text::fromPath(part));
  if (unsafe) failUnsafe(written);
}

// Another machine's folder is never asked; only its file's name counts.
bool isOnNetwork(const std::string& path) { return path.starts_with("//"); }

bool hasDrive(const std::string& path) { return path.size() >= 2 && path[1] == ':'; }

}  // namespace

TableFiles::TableFiles(const std::vector<fs::path>& roots) {
  for (const fs::path& root : roots) {
    std::error_code failed;
    const fs::path canonical = fs::canonical(root, failed);
    if (!failed) roots_.push_back(canonical);
  }
}

bool TableFiles::isBelowRoot(const fs::path& canonical) const {
  return std::any_of(roots_.begin(), roots_.end(), [&](const fs::path& root) {
    return std::mismatch(root.begin(), root.end(), canonical.begin(), canonical.end()).first == root.end();
  });
}

fs::path TableFiles::locate(const std::string& written, const std::optional<fs::path>& workspaceFolder,
                            const std::vector<std::string>& endings) const {
  std::string path = written;
  std::replace(path.begin(), path.end(), '\\', '/');
  refuseUnsafe(written, path);
  const bool network = isOnNetwork(path);
  const bool absolute = path.starts_with("/") || hasDrive(path);
  std::vector<fs::path> candidates;
  if (workspaceFolder) {
    if (!absolute) candidates.push_back(*workspaceFolder / text::toPath(path));
    candidates.push_back(*workspaceFolder / text::toPath(path.substr(path.find_last_of("/:") + 1)));
  }
  if (absolute && !network) candidates.push_back(text::toPath(path));
  for (const fs::path& root : roots_) {
    if (!absolute) candidates.push_back(root / text::toPath(path));
  }
  bool outside = false;
  for (const fs::path& candidate : candidates) {
    for (const std::string& ending : endings) {
      const fs::path file = platform::machinePath(text::fromPath(candidate) + ending);
      std::error_code failed;
      if (!fs::is_regular_file(file, failed)) continue;
      const fs::path canonical = fs::canonical(file, failed);
      if (!failed && isBelowRoot(canonical)) return canonical;
      outside = true;
    }
  }
  if (network) failUnsafe(written);
  throw EngineError(outside ? "«" + written + "»: está fuera de las carpetas que se pueden leer"
                            : "«" + written + "»: no se encuentra el archivo");
}

fs::path TableFiles::table(const std::string& written, const std::optional<fs::path>& workspaceFolder) const {
  const std::string ending = text::lower(written.size() > 4 ? written.substr(written.size() - 4) : "");
  if (ending == ".tab" || ending == ".mif") return locate(written, workspaceFolder, {""});
  return locate(written, workspaceFolder, {".tab", ".mif"});
}

bool TableFiles::mayRead(const fs::path& file) const {
  std::error_code failed;
  const fs::path canonical = fs::weakly_canonical(file, failed);
  return !failed && isBelowRoot(canonical);
}

fs::path TableFiles::workspace(const std::string& written, const fs::path& workspaceFolder) const {
  return locate(written, workspaceFolder, {"", ".wor"});
}

std::vector<fs::path> rootsOf(const fs::path& workspace) {
  const fs::path own = fs::absolute(workspace).lexically_normal().parent_path();
  std::vector<fs::path> roots{own};
  for (fs::path folder = own; folder.has_relative_path(); folder = folder.parent_path()) {
    if (!text::equalsIgnoringCase(text::fromPath(folder.filename()), "Tablas")) continue;
    roots.push_back(folder.parent_path());
    break;
  }
  return roots;
}

}  // namespace motor
