#include "map_table.h"

#include <gtest/gtest.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "sample_study.h"

namespace studytest {

namespace {

std::string shortest(double number) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return {digits.data(), end.ptr};
}

std::string fieldText(const OGRFeature& row, int field) {
  if (!row.IsFieldSetAndNotNull(field)) return "";
  if (row.GetFieldDefnRef(field)->GetType() == OFTReal) return shortest(row.GetFieldAsDouble(field));
  return row.GetFieldAsString(field);
}

void report(const FigureKey& key, const std::string& what) {
  ADD_FAILURE() << key.table << key.year << ": " << key.name << ", " << key.sex << ", " << key.type << ", "
                << key.indicator << ": " << what;
}

bool areEqual(double one, double other) {
  const bool isShownAlike = std::llround(one * 100) == std::llround(other * 100);
  return isShownAlike && std::abs(one - other) <= 1e-9 * std::max(std::abs(one), std::abs(other));
}

}  // namespace

MapTable readMapTable(const std::filesystem::path& file) {
  static const bool isRegistered = (GDALAllRegister(), true);
  (void)isRegistered;
  const GDALDatasetUniquePtr dataset(GDALDataset::Open(file.c_str(), GDAL_OF_VECTOR, nullptr, nullptr, nullptr));
  if (!dataset || dataset->GetLayerCount() != 1) throw std::runtime_error(file.string() + " cannot be read");
  OGRLayer& layer = *dataset->GetLayer(0);
  MapTable table;
  const int fields = layer.GetLayerDefn()->GetFieldCount();
  for (int i = 0; i < fields; ++i) table.columns.emplace_back(layer.GetLayerDefn()->GetFieldDefn(i)->GetNameRef());
  for (const OGRFeatureUniquePtr& row : layer) {
    std::vector<std::string>& texts = table.rows.emplace_back();
    for (int i = 0; i < fields; ++i) texts.push_back(fieldText(*row, i));
    table.objects += row->GetGeometryRef() != nullptr ? 1 : 0;
  }
  return table;
}

std::filesystem::path yearTable(const std::string& base, const std::string& year) {
  return std::filesystem::path(scenarios::sampleStudy()) / "Tablas" / year / (base + year + ".TAB");
}

void addFigures(FigureMap& figures, const std::string& base, const std::string& year, const MapTable& table) {
  const bool isOfZones = base == "ZonasBasicas";
  std::vector<std::string> columns{"Año", "Nombre", "Sexo", "Tipo", "Indicador", "Valor"};
  if (isOfZones) columns.insert(columns.begin() + 2, "Provincia");
  if (table.columns != columns) throw std::runtime_error(base + year + " has other columns");
  for (const std::vector<std::string>& row : table.rows) {
    if (row.front() != year) throw std::runtime_error(base + year + " has a row of " + row.front());
    const std::size_t sex = isOfZones ? 3 : 2;
    const FigureKey key{base, year, isOfZones ? row[2] : "", row[1], row[sex], row[sex + 1], row[sex + 2]};
    if (!figures.emplace(key, std::stod(row[sex + 3])).second) {
      throw std::runtime_error(base + year + " has two rows of " + key.name + ", " + key.indicator);
    }
  }
}

const FigureMap& mapFigures() {
  static const FigureMap figures = [] {
    FigureMap all;
    for (const std::string year : kYears) {
      for (const char* base : kYearTables) addFigures(all, base, year, readMapTable(yearTable(base, year)));
    }
    return all;
  }();
  return figures;
}

std::size_t countEqual(const FigureMap& expected, const FigureMap& found) {
  constexpr std::size_t kReported = 20;
  std::size_t equal = 0;
  std::size_t wrong = 0;
  for (const auto& [key, value] : expected) {
    const auto figure = found.find(key);
    if (figure != found.end() && areEqual(value, figure->second)) {
      ++equal;
    } else if (++wrong <= kReported) {
      report(key, figure == found.end() ? "missing" : shortest(figure->second) + " is not " + shortest(value));
    }
  }
  for (const auto& [key, value] : found) {
    if (!expected.contains(key) && ++wrong <= kReported) report(key, "superfluous");
  }
  EXPECT_EQ(wrong, 0U);
  return equal;
}

}  // namespace studytest
