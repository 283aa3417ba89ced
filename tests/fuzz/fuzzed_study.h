#pragma once

#include <filesystem>

#include "motor/session/tiny_study.h"

// The tiny study in a folder of its own, written once.
class FuzzedStudy {
 public:
  FuzzedStudy() {
    year_ = motor::tiny::writeYear(folder_.path() / "2001", "2001");
    motor::tiny::writeThematic(folder_.path() / "Tematicos");
  }
  [[nodiscard]] const std::filesystem::path& path() const { return folder_.path(); }
  [[nodiscard]] std::string yearWorkspace() const { return year_.string(); }

 private:
  motor::tiny::Folder folder_;
  std::filesystem::path year_;
};
