#include "engine_study.h"

#include <stdexcept>

#include "motor/tables/table_store.h"

namespace figures {

EngineStudy& engineStudy() {
  static EngineStudy study;
  return study;
}

std::shared_ptr<const motor::BaseTable> zones() {
  return motor::TableStore::shared().open(engineStudy().tableFile("ZonasBasicas"));
}

std::vector<motor::Point> somePoints() {
  const auto& objects = zones()->objectSet().objects();
  std::vector<motor::Point> points;
  for (std::size_t i = 0; i < kPlaces; ++i) points.push_back(centroid(*objects.at(i * objects.size() / kPlaces)));
  return points;
}

void require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

}  // namespace figures
