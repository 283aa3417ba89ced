#include "engine/call_log.h"

#include <filesystem>
#include <fstream>

namespace testengine {

void CallLog::write(const std::string& line) const {
  if (file_.empty()) return;
  std::ofstream(std::filesystem::path(file_), std::ios::app | std::ios::binary) << line << '\n';
}

}  // namespace testengine
