#include "sample_study.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace scenarios {

namespace {

constexpr const char* kVariable = "VELDORIA_STUDY";

}  // namespace

bool isSampleStudyNamed() { return std::getenv(kVariable) != nullptr; }

std::string sampleStudy() {
  const char* named = std::getenv(kVariable);
  const std::string folder = named == nullptr ? "" : named;
  if (!std::filesystem::is_directory(folder)) {
    throw std::runtime_error(std::string(kVariable) + " names no folder: \"" + folder + "\" (study sample makes it)");
  }
  return std::filesystem::canonical(folder).string();
}

}  // namespace scenarios
