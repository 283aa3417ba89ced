#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <iomanip>
#include <sstream>
#include <stdexcept>

#include "engine_study.h"
#include "motor/tables/select.h"
#include "motor/tables/testing_select.h"
#include "prepared_polygons.h"
#include "rivals.h"
#include "text/utf8.h"

// The questions that the atlas asks, beside the same questions to a relational database in memory with the index that
// suits them.
namespace figures {
namespace {

using motor::Point;

// --- what is asked: a question for each of some places, spread over the region ---

std::vector<std::string> someTexts(const char* column) {
  const auto table = zones();
  const std::size_t index = *table->findColumn(column);
  const motor::RowId step = table->rowCount() / kPlaces;
  std::vector<std::string> names;
  for (motor::RowId place = 0; place < kPlaces; ++place) names.push_back(*table->text(1 + place * step, index));
  return names;
}

std::string quoted(const std::string& text, char mark) { return mark + text + mark; }

using Questions = std::vector<std::string>;

Questions forEach(const std::vector<std::string>& texts, const std::function<std::string(const std::string&)>& ask) {
  Questions questions;
  std::ranges::transform(texts, std::back_inserter(questions), ask);
  return questions;
}

std::vector<std::string> beginnings() {
  return forEach(someTexts("nombre"), [](const std::string& name) { return text::left(name, 4); });
}

// --- the engine and the database ---

class Engine {
 public:
  Engine() { session_.open("zonas", zones()); }

  [[nodiscard]] std::vector<motor::Statement> parse(const Questions& questions) const {
    std::vector<motor::Statement> statements;
    for (const std::string& question : questions) {
      for (motor::Statement& statement : motor::parseProgram(question)) statements.push_back(std::move(statement));
    }
    return statements;
  }

  // Reads every value of the answer; returns its rows.
  [[nodiscard]] std::size_t ask(const motor::Statement& statement) const {
    const motor::ResultPtr result =
        motor::select(std::get<motor::SelectStatement>(statement), {session_, session_, system_});
    const motor::RowId rows = result->rowCount();
    for (motor::RowId row = 1; row <= rows; ++row) {
      for (std::size_t column = 0; column < result->columns().size(); ++column) {
        benchmark::DoNotOptimize(result->value(row, column));
      }
    }
    return rows;
  }

 private:
  motor::testing_select::TestSession session_;
  motor::CoordinateSystem system_ = zones()->coordinateSystem();  // of the points that are asked for
};

// The study in SQLite, with the zones' boxes in its own tree of boxes and their shapes prepared by GEOS.
class Database {
 public:
  Database() : study_(engineStudy().yearFolder(), engineStudy().year), shapes_(zones()->objectSet().objects()) {
    study_.run("create index zsp on ZonasBasicas(sexo, provincia, valor)");
    study_.run("alter table ZonasBasicas add column shape integer");
    study_.run("create virtual table boxes using rtree(id, minx, maxx, miny, maxy)");
    sqlite3_create_function(study_.database(), "covers", 3, SQLITE_UTF8, this, &Database::covers, nullptr, nullptr);
    numberShapes();
    study_.run("create index zshape on ZonasBasicas(shape)");
    study_.run("analyze");
  }

  [[nodiscard]] std::vector<SqliteStudy::Statement> prepare(const Questions& questions) const {
    std::vector<SqliteStudy::Statement> statements;
    for (const std::string& question : questions) statements.push_back(study_.prepare(question));
    return statements;
  }

  [[nodiscard]] static std::size_t ask(const SqliteStudy::Statement& statement) {
    std::size_t rows = 0;
    sqlite3_reset(statement.get());
    while (sqlite3_step(statement.get()) == SQLITE_ROW) {
      ++rows;
      for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
        benchmark::DoNotOptimize(sqlite3_column_text(statement.get(), column));
      }
    }
    return rows;
  }

 private:
  static void covers(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) {
    const auto& self = *static_cast<const Database*>(sqlite3_user_data(context));
    const auto point = self.shapes_.point({sqlite3_value_double(arguments[1]), sqlite3_value_double(arguments[2])});
    sqlite3_result_int(
        context, self.shapes_.covers(static_cast<std::size_t>(sqlite3_value_int64(arguments[0])), *point) ? 1 : 0);
  }

  void numberShapes() const {
    const auto& set = zones()->objectSet();
    const auto update = study_.prepare("update ZonasBasicas set shape = ? where rowid = ?");
    const auto insert = study_.prepare("insert into boxes values (?, ?, ?, ?, ?)");
    study_.run("begin");
    for (motor::RowId row = 1; row <= zones()->rowCount(); ++row) {
      sqlite3_bind_int64(update.get(), 1, set.indexOf(row));
      sqlite3_bind_int64(update.get(), 2, row);
      sqlite3_step(update.get());
      sqlite3_reset(update.get());
    }
    for (std::size_t i = 0; i < set.objects().size(); ++i) {
      const motor::Box& box = set.objects()[i]->bounds;
      sqlite3_bind_int64(insert.get(), 1, static_cast<sqlite3_int64>(i));
      int place = 1;
      for (const double edge : {box.minX, box.maxX, box.minY, box.maxY})
        sqlite3_bind_double(insert.get(), ++place, edge);
      sqlite3_step(insert.get());
      sqlite3_reset(insert.get());
    }
    study_.run("commit");
  }

  SqliteStudy study_;
  PreparedPolygons shapes_;
};

const Engine& engine() {
  static const Engine kEngine;
  return kEngine;
}

const Database& database() {
  static const Database kDatabase;
  return kDatabase;
}

// The same questions in both languages.
struct Asked {
  const char* name;
  std::function<Questions()> engine;
  std::function<Questions()> database;
};

std::string at(Point p, const char* before, const char* between, const char* after) {
  std::ostringstream text;
  text << std::setprecision(17) << before << p.x << between << p.y << after;
  return text.str();
}

Questions atPoints(const char* before, const char* between, const char* after) {
  Questions questions;
  for (const Point& p : somePoints()) questions.push_back(at(p, before, between, after));
  return questions;
}

const std::vector<Asked> kAsked = {
    {"Name",
     [] {
       return forEach(someTexts("nombre"), [](const std::string& name) {
         return "select * from zonas where nombre=" + quoted(name, '"') + " order by sexo,tipo";
       });
     },
     [] {
       return forEach(someTexts("nombre"), [](const std::string& name) {
         return "select * from ZonasBasicas where nombre=" + quoted(name, '\'') +
                " collate nocase order by sexo,tipo,rowid";
       });
     }},
    {"Prefix",
     [] {
       return forEach(beginnings(), [](const std::string& begin) {
         return "select nombre from zonas where nombre like " + quoted(begin + "%", '"') + " group by nombre";
       });
     },
     [] {
       return forEach(beginnings(), [](const std::string& begin) {
         return "select nombre from ZonasBasicas where nombre like " + quoted(begin + "%", '\'') + " group by nombre";
       });
     }},
    {"Point",
     [] { return atPoints("select * from zonas where obj contains createpoint(", ",", ") order by sexo,tipo"); },
     [] {
       Questions questions;
       for (const Point& p : somePoints()) {
         questions.push_back(
             at(p, "select * from ZonasBasicas where shape in (select id from boxes where minx<=", " and miny<=", "") +
             at(p, " and maxx>=", " and maxy>=", "") + at(p, " and covers(id,", ",", "))") +
             " order by sexo,tipo,rowid");
       }
       return questions;
     }},
    {"Groups",
     [] {
       return Questions{
           "select provincia,count(*),avg(valor) from zonas where sexo=\"Ambos sexos\" group by provincia"};
     },
     [] {
       return Questions{
           "select provincia,count(*),avg(valor) from ZonasBasicas where sexo='Ambos sexos' group by provincia"};
     }},
    {"GroupsOfProvince",
     [] {
       return forEach(someTexts("provincia"), [](const std::string& name) {
         return "select nombre from zonas where provincia=" + quoted(name, '"') + " group by nombre";
       });
     },
     [] {
       return forEach(someTexts("provincia"), [](const std::string& name) {
         return "select nombre from ZonasBasicas where provincia=" + quoted(name, '\'') + " group by nombre";
       });
     }},
};

template <class Statements, class Ask>
void askAll(benchmark::State& state, const Statements& statements, const Ask& ask) {
  std::size_t next = 0;
  for (const auto& statement : statements) require(ask(statement) > 0, "a question has no answer");
  for (auto _ : state) benchmark::DoNotOptimize(ask(statements[next++ % statements.size()]));
}

// Both sides must find the same rows for every question; by prefix the engine finds some more, since "Like" takes an
// accent for no difference.
void compareAnswers(const Asked& asked) {
  const auto ours = engine().parse(asked.engine());
  const auto theirs = database().prepare(asked.database());
  for (std::size_t i = 0; i < ours.size(); ++i) {
    const std::size_t our = engine().ask(ours[i]);
    const std::size_t their = Database::ask(theirs[i]);
    if (our == their || (our > their && asked.name == std::string("Prefix"))) continue;
    throw std::runtime_error(std::string(asked.name) + ": " + std::to_string(our) + " rows, by SQLite " +
                             std::to_string(their) + ": " + asked.engine()[i]);
  }
}

}  // namespace

void registerQuestions() {
  for (const Asked& asked : kAsked) {
    benchmark::RegisterBenchmark((std::string("engine") + asked.name).c_str(), [&asked](benchmark::State& state) {
      compareAnswers(asked);
      askAll(state, engine().parse(asked.engine()), [](const auto& statement) { return engine().ask(statement); });
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark((std::string("sqlite") + asked.name).c_str(), [&asked](benchmark::State& state) {
      askAll(state, database().prepare(asked.database()), &Database::ask);
    })->Unit(benchmark::kMicrosecond);
  }
}

}  // namespace figures
