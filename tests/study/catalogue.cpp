#include "catalogue.h"

#include "sample_study.h"

namespace studytest {

namespace fs = std::filesystem;

std::vector<Frame> frames() {
  std::vector<Frame> all{{"Veldoria/Provincias", "Provincias", "", kProvinces},
                         {"Veldoria/Zonas básicas", "ZonasBasicas", "", kZones}};
  for (const std::string& province : provinces()) {
    std::size_t zones = 0;
    rawFigures().each("SELECT count(*) FROM zones WHERE province = ?", {province},
                      [&](const ResultRow& row) { zones = static_cast<std::size_t>(row.count(0)); });
    all.push_back({province, "ZonasBasicas", province, zones});
  }
  return all;
}

bool exists(const Subject& subject) { return subject.indicator != kProstate || subject.sex != "Mujeres"; }

fs::path pathOf(const Frame& frame, const Subject& subject) {
  return fs::path(scenarios::sampleStudy()) / "Tablas/Tematicos" / subject.year / subject.sex / frame.folder /
         subject.indicator;
}

}  // namespace studytest
