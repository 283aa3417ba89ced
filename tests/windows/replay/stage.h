#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace wintest {

// What a replay needs of the machine: what is installed, and files that are there or are not. What was put there goes
// with it.
class Stage {
 public:
  // Programs are copies of `viewer`, which writes its command lines down.
  explicit Stage(std::filesystem::path viewer) : viewer_(std::move(viewer)) {}
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  // Only what the registry file says is installed; without one the map engine and a PDF reader. Fails with
  // std::invalid_argument.
  void install(const std::optional<std::string>& registryFile);
  // A file under exactly this name, a program where it ends in ".exe".
  void putFile(const std::string& path);
  static void removeFile(const std::string& path);

 private:
  std::filesystem::path viewer_;
  std::vector<std::filesystem::path> created_;
};

}  // namespace wintest
