// The figures that the program is held to, each measured against a named rival in the same run:
//   figures APPFOLDER [benchmark options]

#include <benchmark/benchmark.h>

#include <iostream>
#include <stdexcept>

#include "atlas/shell/frm_principal.h"
#include "consultation.h"
#include "motor/session/headless_windows.h"
#include "motor/session/session.h"
#include "motor/tables/table_store.h"
#include "process_time.h"
#include "ratio_reporter.h"
#include "rivals.h"
#include "text/utf8.h"

namespace {

namespace fs = std::filesystem;

const std::string kYear = "1999";
fs::path study;
fs::path programs;  // where the programs that are started stand

fs::path yearFolder() { return study / "Tablas" / kYear; }
std::string yearMap() { return (yearFolder() / ("Año" + kYear + ".wor")).string(); }

void require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

struct OpenSession {
  motor::HeadlessWindows windows;
  motor::Session session{windows, {.roots = {study}, .decimalSign = ",", .thousandsSign = "."}};

  void openYearMap() { session.run("run application \"" + yearMap() + "\""); }
};

void evalOfAColumn(benchmark::State& state) {
  OpenSession open;
  open.openYearMap();
  open.session.run("Select * from Provincias" + kYear + " order by sexo,tipo");
  open.session.run("Fetch first from selection");
  for (auto _ : state) benchmark::DoNotOptimize(open.session.eval("Selection.sexo"));
}
BENCHMARK(evalOfAColumn);

void sqliteStep(benchmark::State& state) {
  const figures::SqliteStudy sqlite(yearFolder(), kYear);
  const auto statement = sqlite.prepare("select sexo from Provincias");
  for (auto _ : state) {
    if (sqlite3_step(statement.get()) != SQLITE_ROW) {
      sqlite3_reset(statement.get());
      sqlite3_step(statement.get());
    }
    benchmark::DoNotOptimize(std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 0))));
  }
}
BENCHMARK(sqliteStep);

void consultationOfAProvince(benchmark::State& state) {
  figures::HeadlessProgram program(study.string());
  int province = 0;
  for (auto _ : state) {
    program.consultProvince(province);
    province = (province + 1) % 8;
  }
  require(program.nodeCount() > 100, "the consultation listed nothing");
}
BENCHMARK(consultationOfAProvince)->Unit(benchmark::kMicrosecond);

// Steps through a statement, reading every column as text; returns the rows.
int readRows(sqlite3_stmt* statement) {
  int rows = 0;
  std::string field;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    for (int i = 0; i < sqlite3_column_count(statement); ++i) {
      field = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
      benchmark::DoNotOptimize(field.data());
    }
    ++rows;
  }
  sqlite3_reset(statement);
  return rows;
}

// The beginnings that a user types on the way to some of the zones, from the third letter on.
std::vector<std::string> typedBeginnings(figures::HeadlessProgram& program) {
  constexpr std::size_t kPlaces = 40;
  std::vector<std::string> beginnings;
  const auto& zones = program.atlas().frmPrincipal().CmbZonas.items();
  for (std::size_t place = 0; place < kPlaces; ++place) {
    const std::string& name = zones.at(place * zones.size() / kPlaces);
    for (std::size_t letters = 3; letters <= 8; ++letters) beginnings.push_back(text::left(name, letters));
  }
  return beginnings;
}

void searchOfAPlace(benchmark::State& state) {
  figures::HeadlessProgram program(study.string());
  const std::vector<std::string> beginnings = typedBeginnings(program);
  atlas::FrmPrincipal& form = program.atlas().frmPrincipal();
  form.CmbBuscar.userPick(1);
  std::size_t next = 0;
  for (auto _ : state) {
    form.txtBuscar.userEdit(beginnings[next++ % beginnings.size()]);
    require(!form.ListaResultado.items().empty(), "the search found nothing");
  }
}
BENCHMARK(searchOfAPlace)->Unit(benchmark::kMicrosecond);

void sqliteSameSearch(benchmark::State& state) {
  figures::HeadlessProgram program(study.string());
  const std::vector<std::string> beginnings = typedBeginnings(program);
  const figures::SqliteStudy sqlite(yearFolder(), kYear);
  const auto search = sqlite.prepare("select nombre from ZonasBasicas where nombre like ? group by nombre");
  std::size_t next = 0;
  for (auto _ : state) {
    const std::string pattern = beginnings[next++ % beginnings.size()] + "%";
    sqlite3_bind_text(search.get(), 1, pattern.c_str(), -1, SQLITE_TRANSIENT);
    require(readRows(search.get()) > 0, "the rival found nothing");
  }
}
BENCHMARK(sqliteSameSearch)->Unit(benchmark::kMicrosecond);

void sqliteSameRows(benchmark::State& state) {
  const figures::SqliteStudy sqlite(yearFolder(), kYear);
  std::vector<std::string> provinces;
  const auto names = sqlite.prepare("select distinct nombre from Provincias");
  while (sqlite3_step(names.get()) == SQLITE_ROW) {
    provinces.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(names.get(), 0)));
  }
  const auto unit = sqlite.prepare(
      "select \"Año\",nombre,sexo,tipo,indicador,valor from Provincias where nombre=? order by sexo,tipo");
  const auto region =
      sqlite.prepare("select \"Año\",nombre,sexo,tipo,indicador,valor from Veldoria order by sexo,tipo");
  const auto zones = sqlite.prepare("select nombre from ZonasBasicas where provincia=? group by nombre");
  std::size_t next = 0;
  int rows = 0;
  for (auto _ : state) {
    const std::string& name = provinces[next++ % provinces.size()];
    sqlite3_bind_text(unit.get(), 1, name.c_str(), -1, SQLITE_STATIC);
    sqlite3_bind_text(zones.get(), 1, name.c_str(), -1, SQLITE_STATIC);
    rows = readRows(unit.get()) + readRows(unit.get()) + readRows(region.get()) + readRows(zones.get());
  }
  require(rows > 100, "the rival read nothing");
}
BENCHMARK(sqliteSameRows)->Unit(benchmark::kMicrosecond);

void yearMapCold(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    motor::TableStore::shared().clear();
    state.ResumeTiming();
    OpenSession open;
    open.openYearMap();
  }
}
BENCHMARK(yearMapCold)->Unit(benchmark::kMillisecond);

void yearMapAgain(benchmark::State& state) {
  OpenSession first;
  first.openYearMap();
  for (auto _ : state) {
    OpenSession open;
    open.openYearMap();
  }
}
BENCHMARK(yearMapAgain)->Unit(benchmark::kMillisecond);

void gdalAlone(benchmark::State& state) {
  std::vector<fs::path> files;
  for (const char* base : {"Provincias", "ZonasBasicas", "Veldoria"})
    files.push_back(yearFolder() / (base + kYear + ".TAB"));
  for (auto _ : state) require(figures::readWithGdal(files) > 1000, "GDAL read nothing");
}
BENCHMARK(gdalAlone)->Unit(benchmark::kMillisecond);

// The program is started as often as the window that it is compared with; each start is a run of its own.
void startedAgain(benchmark::internal::Benchmark* benchmark) {
  benchmark->UseManualTime()->Iterations(1)->Repetitions(7)->Unit(benchmark::kMillisecond);
}

// What a user meets who lets the splash be: the wait itself, in which the program gets ready, is not counted. (It is a
// little shorter than the splash's own, which ends when the desktop's clock finds it convenient.)
void startWithSplash(benchmark::State& state) {
  constexpr int kWait = 2000;  // milliseconds
  for (auto _ : state) {
    state.SetIterationTime(figures::secondsToFirstLine({programs / "first_map", study, std::to_string(kWait)}) -
                           kWait / 1000.0);
  }
}
BENCHMARK(startWithSplash)->Apply(startedAgain);

void startAtOnce(benchmark::State& state) {
  for (auto _ : state) state.SetIterationTime(figures::secondsToFirstLine({programs / "first_map", study, "0"}));
}
BENCHMARK(startAtOnce)->Apply(startedAgain);

void bareQtWindow(benchmark::State& state) {
  for (auto _ : state) state.SetIterationTime(figures::secondsToFirstLine({programs / "bare_window"}));
}
BENCHMARK(bareQtWindow)->Apply(startedAgain);

const std::vector<figures::Figure> kFigures = {
    {"Eval of a selection's column : one step of a prepared SQLite statement", "evalOfAColumn", "sqliteStep", 1.0 / 3},
    {"consultation of a province : the same rows from SQLite, indexed, in memory", "consultationOfAProvince",
     "sqliteSameRows", 5},
    {"a letter typed into the search of a place : the same search by SQLite, indexed, in memory", "searchOfAPlace",
     "sqliteSameSearch", 1},
    {"year map opened cold : its tables read with GDAL alone", "yearMapCold", "gdalAlone", 1.5},
    {"year map opened again : its tables read with GDAL alone", "yearMapAgain", "gdalAlone", 1.0 / 20},
    {"start to the first painted map, less the splash's wait : a bare Qt window with as many polygons",
     "startWithSplash", "bareQtWindow", 1.5},
    {"start to the first painted map, the splash clicked away at once : the same window", "startAtOnce", "bareQtWindow",
     1.5},
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: figures APPFOLDER [benchmark options]\n";
    return 2;
  }
  study = fs::canonical(argv[1]);
  programs = fs::canonical("/proc/self/exe").parent_path();
  std::swap(argv[0], argv[1]);
  int options = argc - 1;
  benchmark::Initialize(&options, argv + 1);
  figures::RatioReporter reporter(kFigures);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::cout << "\nmemory of the program with the year map open: "
            << figures::reportedNumber({programs / "first_map", study, "memory"}) << " MB (goal: under 120)\n";
  std::cout << "slowest letter typed into the search of a place, to the list painted: "
            << figures::reportedNumber({programs / "typing", study}) << " ms (goal: under 16)\n";
  return 0;
}
