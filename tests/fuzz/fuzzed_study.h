#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "motor/session/tiny_study.h"

// The tiny study in a folder of its own, written once.
class FuzzedStudy {
 public:
  FuzzedStudy() {
    motor::tiny::writeYear(folder_.path() / "2001", "2001");
    motor::tiny::writeThematic(folder_.path() / "Tematicos");
  }
  [[nodiscard]] const std::filesystem::path& path() const { return folder_.path(); }
  // Opens the tables of the year and a map of two of them.
  [[nodiscard]] static const char* statements() {
    return "Open Table \"2001/Provincias2001\" Open Table \"2001/ZonasBasicas2001\" Open Table \"2001/Veldoria2001\" "
           "Map From Provincias2001, ZonasBasicas2001";
  }
  // Writes a file anew: one that is written over goes to the disk at once, which takes longer than all that is done
  // with it.
  std::filesystem::path write(const char* name, const std::string& bytes) const {
    const std::filesystem::path file = path() / name;
    std::filesystem::remove(file);
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }

 private:
  motor::tiny::Folder folder_;
};
