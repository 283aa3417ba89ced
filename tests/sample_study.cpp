#include "sample_study.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace scenarios {

std::optional<std::string> sampleStudy() {
  const char* folder = std::getenv("VELDORIA_STUDY");
  if (folder == nullptr) return std::nullopt;
  if (!std::filesystem::is_directory(folder)) {
    throw std::runtime_error(std::string("VELDORIA_STUDY names no folder: ") + folder + " (study sample makes it)");
  }
  return std::filesystem::canonical(folder).string();
}

}  // namespace scenarios
