#include "raw_figures.h"

#include <memory>
#include <stdexcept>

#include "csv.h"
#include "scratch_folder.h"
#include "study/generator/generator.h"
#include "text/file_text.h"

namespace studytest {

namespace {

std::string wholeText(const std::filesystem::path& file) {
  auto bytes = text::wholeFile(file);
  if (!bytes) throw std::runtime_error(file.string() + " cannot be read");
  return *std::move(bytes);
}

// The queries' standard population and age groups are to be those of the input.
void expectStandardAndAges(const Database& database, const std::string& settings) {
  if (settings.find("\nstandard = \"europea 1976\"\n") == settings.npos) {
    throw std::runtime_error("the sample is standardised otherwise");
  }
  database.each("SELECT count(*) FROM ages", {}, [](const ResultRow& row) {
    if (row.count(0) != static_cast<long>(kAges)) throw std::runtime_error("the age groups have another number");
  });
  database.each(
      "SELECT DISTINCT age_group FROM (SELECT age_group FROM population UNION SELECT age_group FROM deaths)"
      " WHERE age_group NOT IN (SELECT age_group FROM ages)",
      {}, [](const ResultRow& row) { throw std::runtime_error("an unknown age group: " + row.text(0)); });
}

std::unique_ptr<Database> made() {
  const ScratchFolder input;
  study::generator::generateInput({}, input.path(), [](const std::string&) {});
  auto database = std::make_unique<Database>();
  for (const char* table : {"deaths", "population", "causes"}) {
    database->load(table, csvRows(wholeText(input.path() / (std::string(table) + ".csv"))));
  }
  std::vector<std::vector<std::string>> zones{{"zone", "province"}};
  database->each(
      "SELECT json_extract(value, '$.properties.zone'), json_extract(value, '$.properties.province')"
      " FROM json_each(?, '$.features')",
      {wholeText(input.path() / "zones.geojson")}, [&](const ResultRow& row) {
        zones.push_back({row.text(0), row.text(1)});
      });
  database->load("zones", zones);
  database->run(wholeText(VELDORIA_FIGURES_SQL));
  expectStandardAndAges(*database, wholeText(input.path() / "study.toml"));
  return database;
}

}  // namespace

const Database& rawFigures() {
  static const std::unique_ptr<Database> database = made();
  return *database;
}

const FigureMap& expectedFigures() {
  static const FigureMap figures = [] {
    FigureMap all;
    rawFigures().each(
        "SELECT kind, year, province, name, choice, type, indicator, value FROM map_figures", {},
        [&](const ResultRow& row) {
          all[{row.text(0), row.text(1), row.text(2), row.text(3), row.text(4), row.text(5), row.text(6)}] =
              row.number(7);
        });
    return all;
  }();
  return figures;
}

std::vector<std::string> provinces() {
  std::vector<std::string> names;
  rawFigures().each("SELECT name FROM units WHERE kind = 'Provincias'", {},
                    [&](const ResultRow& row) { names.push_back(row.text(0)); });
  return names;
}

}  // namespace studytest
