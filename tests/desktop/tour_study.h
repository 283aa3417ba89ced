#pragma once

#include <filesystem>
#include <fstream>

namespace desktop::testing {

// Makes a copy of the tiny study, in a folder that is not there yet, that has the documents and the help too.
inline void makeTourStudy(const std::filesystem::path& study) {
  namespace fs = std::filesystem;
  const auto write = [](const fs::path& file) {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << "texto";
  };
  fs::copy(VELDORIA_TINY_STUDY, study, fs::copy_options::recursive);
  for (const char* name : {"PRESENTACION.html", "Medologia.html", "Uso de la aplicacion.html", "Creditos.html",
                           "mortalidad_1999.pdf", "mortalidad_2000.pdf", "mortalidad_2001.pdf"}) {
    write(study / "Archivos" / name);
  }
  write(study / "Ayuda" / "Ayuda.html");
}

}  // namespace desktop::testing
