#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <numbers>

#include "motor/tables/table_store.h"
#include "motor/tables/testing_tables.h"

namespace motor {
namespace {

using testing_tables::TemporaryFolder;

constexpr int kUnits = 120;
constexpr int kRowsPerUnit = 96;
constexpr int kVertices = 100;

std::unique_ptr<OGRPolygon> unitShape(int unit) {
  OGRLinearRing ring;
  for (int i = 0; i < kVertices; ++i) {
    const double angle = 2 * std::numbers::pi * i / kVertices;
    const double radius = 4000 + 700 * std::sin(7 * angle + unit);
    ring.addPoint(300000 + 9000.0 * (unit % 12) + radius * std::cos(angle),
                  4500000 + 9000.0 * (unit / 12) + radius * std::sin(angle));
  }
  ring.closeRings();
  auto polygon = std::make_unique<OGRPolygon>();
  polygon->addRing(&ring);
  return polygon;
}

void describe(OGRLayer& layer) {
  testing_tables::addColumn(layer, "Año", OFTString, 4);
  testing_tables::addColumn(layer, "Nombre", OFTString, 40);
  testing_tables::addColumn(layer, "Sexo", OFTString, 12);
  testing_tables::addColumn(layer, "Tipo", OFTString, 30);
  testing_tables::addColumn(layer, "Indicador", OFTString, 80);
  testing_tables::addColumn(layer, "Valor", OFTReal, 12, 2);
}

void fill(OGRLayer& layer) {
  constexpr std::array kSexes = {"Ambos sexos", "Hombres", "Mujeres"};
  for (int unit = 0; unit < kUnits; ++unit) {
    const std::unique_ptr<OGRPolygon> shape = unitShape(unit);
    for (int row = 0; row < kRowsPerUnit; ++row) {
      const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer.GetLayerDefn()));
      feature->SetField(0, "1999");
      feature->SetField(1, ("Zona básica " + std::to_string(unit)).c_str());
      feature->SetField(2, kSexes[static_cast<std::size_t>(row) / 32]);
      feature->SetField(3, row % 32 < 20 ? "Lista reducida" : "Grandes grupos");
      feature->SetField(4, ("Tasa estandarizada (x100.000) de causa " + std::to_string(row % 32)).c_str());
      feature->SetField(5, unit * 1.5 + row);
      feature->SetGeometry(shape.get());
      testing_tables::addRow(layer, *feature);
    }
  }
}

class ZonesFile {
 public:
  ZonesFile() : folder_("table_store_bench"), path_(folder_.path() / "Zonas.tab") {
    testing_tables::writeTab(path_, "Earth Projection 8, 28, \"m\", -3, 0, 0.9996, 500000, 0", describe, fill);
  }
  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  TemporaryFolder folder_;
  std::filesystem::path path_;
};

const std::filesystem::path& zones() {
  static const ZonesFile file;
  return file.path();
}

// The format library reads every row, and looks at nothing.
void readWithTheLibraryAlone(benchmark::State& state) {
  const std::filesystem::path& file = zones();
  for (auto _ : state) {
    const GDALDatasetUniquePtr dataset(GDALDataset::Open(file.string().c_str(), GDAL_OF_VECTOR));
    int rows = 0;
    while (const OGRFeatureUniquePtr feature{dataset->GetLayer(0)->GetNextFeature()}) ++rows;
    if (rows != kUnits * kRowsPerUnit) state.SkipWithError("rows are missing");
  }
}
BENCHMARK(readWithTheLibraryAlone)->Unit(benchmark::kMillisecond);

void readCold(benchmark::State& state) {
  const std::filesystem::path& file = zones();
  for (auto _ : state) {
    const std::shared_ptr<const BaseTable> table = BaseTable::read(file);
    if (table->objectSet().objects().size() != kUnits) state.SkipWithError("objects are not shared");
  }
}
BENCHMARK(readCold)->Unit(benchmark::kMillisecond);

void openAgainFromStore(benchmark::State& state) {
  TableStore store;
  const std::shared_ptr<const BaseTable> held = store.open(zones());
  for (auto _ : state) benchmark::DoNotOptimize(store.open(zones()));
}
BENCHMARK(openAgainFromStore)->Unit(benchmark::kMillisecond);

void rowsOfOneUnit(benchmark::State& state) {
  const std::shared_ptr<const BaseTable> table = BaseTable::read(zones());
  for (auto _ : state) benchmark::DoNotOptimize(table->rowsEqual(1, "zona básica 77").size());
}
BENCHMARK(rowsOfOneUnit);

}  // namespace
}  // namespace motor
