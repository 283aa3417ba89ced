#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <memory>

#include "motor/session/headless_windows.h"
#include "motor/session/session.h"
#include "motor/session/tiny_study.h"

// One field of one row is one evaluation: it should cost no more than a third of a step of a prepared statement of a
// database in memory that fetches the same field.
namespace motor {
namespace {

class OpenStudy {
 public:
  OpenStudy() {
    const std::filesystem::path workspace = tiny::writeYear(folder_.path(), "2001");
    session_ = std::make_unique<Session>(windows_, SessionOptions{.roots = {folder_.path()}});
    session_->run("run application \"" + workspace.string() + "\"");
    session_->run("Select * from Provincias2001 where nombre=\"Brisa\" order by sexo,tipo");
  }
  [[nodiscard]] Session& session() { return *session_; }

 private:
  tiny::Folder folder_;
  HeadlessWindows windows_;
  std::unique_ptr<Session> session_;
};

void evaluate(benchmark::State& state, const char* text) {
  OpenStudy study;
  const std::string expression = text;
  for (auto _ : state) benchmark::DoNotOptimize(study.session().eval(expression));
}

void fetchRows(benchmark::State& state) {
  OpenStudy study;
  const std::string first = "Fetch first from selection";
  const std::string next = "Fetch next from selection";
  int row = 0;
  for (auto _ : state) study.session().run(row++ % 12 == 0 ? first : next);
}

// The same field by a prepared statement: bind, step, read, reset.
void sqliteStep(benchmark::State& state) {
  sqlite3* database = nullptr;
  sqlite3_open(":memory:", &database);
  sqlite3_exec(database, "create table p(id integer primary key, nombre text, sexo text, tipo text, valor real)",
               nullptr, nullptr, nullptr);
  for (int i = 1; i <= 36; ++i) {
    const std::string row = "insert into p values(" + std::to_string(i) + ",'Brisa','Ambos sexos','General',12.345)";
    sqlite3_exec(database, row.c_str(), nullptr, nullptr, nullptr);
  }
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(database, "select sexo from p where id=?", -1, &statement, nullptr);
  for (auto _ : state) {
    sqlite3_bind_int(statement, 1, 7);
    sqlite3_step(statement);
    std::string text(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    benchmark::DoNotOptimize(text);
    sqlite3_reset(statement);
  }
  sqlite3_finalize(statement);
  sqlite3_close(database);
}

BENCHMARK_CAPTURE(evaluate, column, "Selection.sexo");
BENCHMARK_CAPTURE(evaluate, endOfTable, "EOT(\"Selection\")");
BENCHMARK_CAPTURE(evaluate, formattedNumber, "Formatnumber$(round(Selection.valor,0.01))");
BENCHMARK(fetchRows);
BENCHMARK(sqliteStep);

}  // namespace
}  // namespace motor
