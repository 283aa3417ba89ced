#include <gtest/gtest.h>

#include <algorithm>

#include "csv.h"
#include "map_table.h"
#include "outside_program.h"
#include "sample_study.h"

// The map tables as the map library's own programs read them.
namespace studytest {
namespace {

namespace fs = std::filesystem;

class CommandLineTools : public testing::Test {
 protected:
  void SetUp() override {
    const auto convert = findProgram({"ogr2ogr"});
    const auto describe = findProgram({"ogrinfo"});
    if (!convert || !describe) {
      const char* const reason =
          "ogr2ogr and ogrinfo (Debian: gdal-bin) are not installed; no table was read with them";
      tellAtTheEnd(reason);
      GTEST_SKIP() << reason;
    }
    convert_ = *convert;
    describe_ = *describe;
  }

  // A table as rows between commas, converted by the program.
  [[nodiscard]] MapTable converted(const fs::path& file) const {
    const ProgramResult result = runProgram({convert_, "-f", "CSV", "/vsistdout/", file.string()});
    EXPECT_EQ(result.code, 0) << file;
    MapTable table;
    table.rows = csvRows(result.output);
    if (table.rows.empty()) throw std::runtime_error("nothing was written of " + file.string());
    table.columns = table.rows.front();
    table.rows.erase(table.rows.begin());
    return table;
  }

  std::string convert_;
  std::string describe_;
};

TEST_F(CommandLineTools, ReadTheYearTablesAsTheyWereMeant) {
  FigureMap read;
  for (const std::string year : kYears) {
    for (const char* base : kYearTables) addFigures(read, base, year, converted(yearTable(base, year)));
  }
  EXPECT_EQ(countEqual(expectedFigures(), read), kFigures);
}

// Names with accents are found as such, in texts and in names of columns, files and folders.
TEST_F(CommandLineTools, ReadThematicTables) {
  const fs::path catalogue = fs::path(scenarios::sampleStudy()) / "Tablas/Tematicos";
  const std::string indicator = "Tasa estandarizada (x100.000) de Trastornos mentales orgánicos senil y presenil";
  std::size_t equal = 0;
  for (const std::string year : kYears) {
    for (const std::string sex : kSexes) {
      const fs::path file = catalogue / year / sex / "Veldoria/Zonas básicas" / (indicator + ".TAB");
      const MapTable table = converted(file);
      EXPECT_EQ(table.columns, (std::vector<std::string>{"Nombre", "Indicador", "Sexo", "Tipo", "Valor"}));
      FigureMap expected;
      for (const auto& [key, value] : expectedFigures()) {
        const bool isShown = key.table == "ZonasBasicas" && key.year == year && key.sex == sex &&
                             key.type == "Lista reducida" && key.indicator == indicator;
        if (isShown) expected[{"", "", "", key.name, key.sex, key.type, key.indicator}] = value;
      }
      FigureMap read;
      for (const auto& row : table.rows) read[{"", "", "", row[0], row[2], row[3], row[1]}] = std::stod(row[4]);
      equal += countEqual(expected, read);
    }
  }
  EXPECT_EQ(equal, kYears.size() * kSexes.size() * kZones);
}

TEST_F(CommandLineTools, DescribeTheTables) {
  for (const std::string year : kYears) {
    const ProgramResult result = runProgram({describe_, "-ro", "-so", "-al", yearTable("ZonasBasicas", year).string()});
    EXPECT_EQ(result.code, 0);
    for (const std::string line : {"Transverse Mercator", "Feature Count: 12360", "Año: Integer", "Nombre: String",
                                   "Provincia: String", "Valor: Real"}) {
      EXPECT_NE(result.output.find(line), std::string::npos) << line << " is not in\n" << result.output;
    }
  }
}

}  // namespace
}  // namespace studytest
