#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <array>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "motor/tables/select.h"
#include "motor/tables/testing_select.h"
#include "motor/tables/testing_tables.h"

// The questions that the atlas asks, on a table of its size, beside the same questions to a relational database in
// memory with the index that suits them.
namespace motor {
namespace {

using testing_select::TestSession;
using testing_tables::TemporaryFolder;

constexpr int kUnits = 120;
constexpr int kProvinces = 8;
constexpr int kRowsPerUnit = 96;
constexpr std::array kSexes = {"Ambos sexos", "Hombres", "Mujeres"};

struct FigureRow {
  std::string name;
  std::string province;
  std::string sex;
  std::string type;
  std::string indicator;
  double value;
};

// The rows of all units, in no useful order within a unit.
std::vector<FigureRow> figureRows() {
  std::vector<FigureRow> rows;
  for (int unit = 0; unit < kUnits; ++unit) {
    for (int i = 0; i < kRowsPerUnit; ++i) {
      rows.push_back({"Zona basica " + std::to_string(unit), "Provincia " + std::to_string(unit % kProvinces),
                      kSexes[static_cast<std::size_t>(i) % 3], i % 2 == 0 ? "Lista reducida" : "Grandes grupos",
                      "Tasa estandarizada (x100.000) de causa " + std::to_string(i / 3), unit * 1.5 + i});
    }
  }
  return rows;
}

// The square of a unit; squares lie in rows of twelve.
std::string square(int unit) {
  const int x = 10 * (unit % 12);
  const int y = 10 * (unit / 12);
  std::ostringstream text;
  text << "Region 1\n5\n"
       << x << ' ' << y << '\n'
       << x + 10 << ' ' << y << '\n'
       << x + 10 << ' ' << y + 10 << '\n'
       << x << ' ' << y + 10 << '\n'
       << x << ' ' << y << '\n';
  return text.str();
}

std::shared_ptr<const BaseTable> readFigures(const std::vector<FigureRow>& rows) {
  const TemporaryFolder folder("select_bench");
  std::ostringstream mif;
  std::ostringstream mid;
  mif << "Version 300\nCharset \"WindowsLatin1\"\nDelimiter \",\"\nCoordSys Earth Projection 1, 104\nColumns 6\n"
         "  Nombre Char(30)\n  Provincia Char(20)\n  Sexo Char(12)\n  Tipo Char(20)\n  Indicador Char(60)\n  Valor "
         "Float\n"
         "Data\n\n";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const FigureRow& row = rows[i];
    mif << square(static_cast<int>(i) / kRowsPerUnit);
    mid << '"' << row.name << "\",\"" << row.province << "\",\"" << row.sex << "\",\"" << row.type << "\",\""
        << row.indicator << "\"," << row.value << '\n';
  }
  folder.write("zonas.mid", mid.str());
  return BaseTable::read(folder.write("zonas.mif", mif.str()));
}

// The table in both engines.
class Figures {
 public:
  Figures() {
    const std::vector<FigureRow> rows = figureRows();
    session_.open("zonas", readFigures(rows));
    sqlite3_open(":memory:", &database_);
    sql("create table zonas (nombre text, provincia text, sexo text, tipo text, indicador text, valor real)");
    sql("begin");
    for (const FigureRow& row : rows) {
      sql("insert into zonas values ('" + row.name + "','" + row.province + "','" + row.sex + "','" + row.type + "','" +
          row.indicator + "'," + std::to_string(row.value) + ")");
    }
    sql("commit");
    sql("create index by_name on zonas (nombre, sexo, tipo)");
    sql("create index by_province on zonas (provincia, nombre)");
  }
  ~Figures() { sqlite3_close(database_); }
  Figures(const Figures&) = delete;
  Figures& operator=(const Figures&) = delete;

  [[nodiscard]] const TestSession& session() const { return session_; }
  [[nodiscard]] sqlite3* database() const { return database_; }

 private:
  void sql(const std::string& statement) const {
    if (sqlite3_exec(database_, statement.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
  }

  TestSession session_;
  sqlite3* database_ = nullptr;
};

const Figures& figures() {
  static const Figures kFigures;
  return kFigures;
}

void askEngine(benchmark::State& state, const char* text) {
  const std::vector<Statement> parsed = parseProgram(text);
  const auto& statement = std::get<SelectStatement>(parsed.front());
  const TestSession& session = figures().session();
  const CoordinateSystem system;
  const SelectContext context{session, session, system};
  RowId rows = select(statement, context)->rowCount();
  for (auto _ : state) {
    const ResultPtr result = select(statement, context);
    rows = result->rowCount();
    for (RowId row = 1; row <= rows; ++row) {
      for (std::size_t column = 0; column < result->columns().size(); ++column) {
        benchmark::DoNotOptimize(result->value(row, column));
      }
    }
  }
  state.counters["rows"] = rows;
}

void askDatabase(benchmark::State& state, const char* text) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(figures().database(), text, -1, &statement, nullptr) != SQLITE_OK) std::abort();
  int rows = 0;
  for (auto _ : state) {
    rows = 0;
    sqlite3_reset(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
      ++rows;
      for (int column = 0; column < sqlite3_column_count(statement); ++column) {
        benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
      }
    }
  }
  sqlite3_finalize(statement);
  state.counters["rows"] = rows;
}

constexpr const char* kUnit = "where nombre=\"Zona basica 60\" order by sexo,tipo";

void unitInEngine(benchmark::State& state) {
  askEngine(state, (std::string("select nombre,sexo,tipo,indicador,valor from zonas ") + kUnit).c_str());
}
BENCHMARK(unitInEngine);

void unitInDatabase(benchmark::State& state) {
  askDatabase(
      state,
      "select nombre,sexo,tipo,indicador,valor from zonas where nombre='Zona basica 60' order by sexo,tipo,rowid");
}
BENCHMARK(unitInDatabase);

void unitsOfProvinceInEngine(benchmark::State& state) {
  askEngine(state, "select nombre from zonas where provincia=\"Provincia 3\" group by nombre");
}
BENCHMARK(unitsOfProvinceInEngine);

void unitsOfProvinceInDatabase(benchmark::State& state) {
  askDatabase(state, "select nombre from zonas where provincia='Provincia 3' group by nombre");
}
BENCHMARK(unitsOfProvinceInDatabase);

void allUnitsInEngine(benchmark::State& state) { askEngine(state, "select nombre from zonas group by nombre"); }
BENCHMARK(allUnitsInEngine);

void allUnitsInDatabase(benchmark::State& state) { askDatabase(state, "select nombre from zonas group by nombre"); }
BENCHMARK(allUnitsInDatabase);

void unitsByBeginningInEngine(benchmark::State& state) {
  askEngine(state, "select nombre from zonas where nombre like \"zona basica 1%\" group by nombre");
}
BENCHMARK(unitsByBeginningInEngine);

void unitsByBeginningInDatabase(benchmark::State& state) {
  askDatabase(state, "select nombre from zonas where nombre like 'zona basica 1%' group by nombre");
}
BENCHMARK(unitsByBeginningInDatabase);

void unitUnderPointInEngine(benchmark::State& state) {
  askEngine(state, "select * from zonas where obj contains createpoint(55,43) order by sexo,tipo");
}
BENCHMARK(unitUnderPointInEngine);

void meansByTypeInEngine(benchmark::State& state) {
  askEngine(state, "select tipo, count(*), avg(valor) from zonas where valor > 100 group by tipo");
}
BENCHMARK(meansByTypeInEngine);

void meansByTypeInDatabase(benchmark::State& state) {
  askDatabase(state, "select tipo, count(*), avg(valor) from zonas where valor > 100 group by tipo");
}
BENCHMARK(meansByTypeInDatabase);

void parseUnitStatement(benchmark::State& state) {
  const std::string text = std::string("Select Año,Nombre,Sexo,Tipo,indicador,valor from zonas ") + kUnit;
  for (auto _ : state) benchmark::DoNotOptimize(parseProgram(text));
}
BENCHMARK(parseUnitStatement);

}  // namespace
}  // namespace motor
