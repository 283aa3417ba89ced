#pragma once

#include <cmath>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "motor/language/expressions/name_reference.h"
#include "motor/language/function_table.h"
#include "motor/language/parser.h"
#include "motor/tables/base_table.h"
#include "motor/tables/select.h"
#include "text/utf8.h"

// Small tables in memory, and Select on them, for tests.
namespace motor::testing_select {

// A rectangle.
inline ObjectPtr rectangle(double minX, double minY, double maxX, double maxY) {
  auto object = std::make_shared<MapObject>();
  object->kind = MapObject::Kind::region;
  object->points = {{minX, minY}, {maxX, minY}, {maxX, maxY}, {minX, maxY}, {minX, minY}};
  object->parts = {0};
  for (const Point& p : object->points) object->bounds.add(p);
  return object;
}

inline ObjectPtr point(double x, double y) {
  auto object = std::make_shared<MapObject>();
  object->points = {{x, y}};
  object->parts = {0};
  object->bounds.add(object->points.front());
  return object;
}

// Gathers a table row by row. Columns are texts where their first value is one, else numbers.
class TableBuilder {
 public:
  explicit TableBuilder(const std::vector<std::string>& names) : names_(names) {}

  TableBuilder& row(std::vector<Value> values, ObjectPtr object = nullptr) {
    rows_.push_back(std::move(values));
    objects_.push_back(std::move(object));
    deleted_.push_back(false);
    return *this;
  }
  TableBuilder& deletedRow() {
    row(std::vector<Value>(names_.size()));
    deleted_.back() = true;
    return *this;
  }
  TableBuilder& system(CoordinateSystem system) {
    system_ = std::move(system);
    return *this;
  }

  [[nodiscard]] std::shared_ptr<const BaseTable> build() const {
    TableContents contents;
    for (std::size_t column = 0; column < names_.size(); ++column) addColumn(contents, column);
    contents.deleted = deleted_;
    addObjects(contents);
    contents.coordinateSystem = system_;
    return std::make_shared<const BaseTable>(std::move(contents));
  }

 private:
  void addColumn(TableContents& contents, std::size_t column) const {
    const bool isText = rows_.front()[column].text() != nullptr;
    contents.columns.push_back({names_[column], isText ? Column::Type::text : Column::Type::number, 0, 0});
    if (isText) {
      TextColumn texts;
      for (std::size_t i = 0; i < rows_.size(); ++i) {
        deleted_[i] ? texts.appendAbsent() : texts.append(rows_[i][column].toText());
      }
      contents.data.emplace_back(std::move(texts));
    } else {
      std::vector<double> numbers;
      for (const auto& values : rows_) {
        const double* number = values[column].number();
        numbers.push_back(number != nullptr ? *number : std::nan(""));
      }
      contents.data.emplace_back(std::move(numbers));
    }
  }

  void addObjects(TableContents& contents) const {
    std::vector<ObjectPtr> distinct;
    std::vector<std::uint32_t> indexes;
    for (const ObjectPtr& object : objects_) {
      std::uint32_t index = ObjectSet::kNone;
      for (std::size_t i = 0; object && i < distinct.size(); ++i) {
        if (distinct[i] == object) index = static_cast<std::uint32_t>(i);
      }
      if (object && index == ObjectSet::kNone) {
        index = static_cast<std::uint32_t>(distinct.size());
        distinct.push_back(object);
      }
      indexes.push_back(index);
    }
    contents.hasObjects = !distinct.empty();
    contents.objects = ObjectSet(std::move(distinct), std::move(indexes));
  }

  std::vector<std::string> names_;
  std::vector<std::vector<Value>> rows_;
  std::vector<ObjectPtr> objects_;
  std::vector<bool> deleted_;
  CoordinateSystem system_;
};

// A session with tables, the variable `v` (5) and the functions CreatePoint, CentroidX and CentroidY.
class TestSession final : public TableResolver, public Scope {
 public:
  TestSession() {
    functions_.add("createpoint", 2, 2, [](const Arguments& a) { return Value(point(a.number(0), a.number(1))); });
    functions_.add("centroidx", 1, 1, [](const Arguments& a) { return Value(centroid(*a.object(0)).x); });
    functions_.add("centroidy", 1, 1, [](const Arguments& a) { return Value(centroid(*a.object(0)).y); });
  }

  void open(const std::string& name, TablePtr table) { tables_[text::lower(name)] = std::move(table); }

  [[nodiscard]] TablePtr find(std::string_view name) const override {
    const auto found = tables_.find(text::lower(name));
    return found == tables_.end() ? nullptr : found->second;
  }
  [[nodiscard]] Value name(const NameReference& reference) const override {
    if (reference.text() == "v") return 5;
    throw LanguageError(reference.position(), reference.text(), "nombre desconocido");
  }
  [[nodiscard]] Value column(const std::string& table, double /*number*/, Position position) const override {
    throw LanguageError(position, table, "tabla desconocida");
  }
  [[nodiscard]] Value call(const FunctionCall& function, std::span<const Value> arguments) const override {
    return functions_.call(function, arguments);
  }

  [[nodiscard]] ResultPtr select(const std::string& statement) const {
    const std::vector<Statement> statements = parseProgram(statement);
    return motor::select(std::get<SelectStatement>(statements.at(0)), {*this, *this, system_});
  }

 private:
  std::map<std::string, TablePtr> tables_;
  FunctionTable functions_ = pureFunctions();
  CoordinateSystem system_;
};

// The values of all rows: "a,b|c,d".
inline std::string shown(const Table& table) {
  std::string all;
  for (RowId row = 1; row <= table.rowCount(); ++row) {
    if (row > 1) all += '|';
    for (std::size_t column = 0; column < table.columns().size(); ++column) {
      if (column > 0) all += ',';
      all += table.value(row, column).toText();
    }
  }
  return all;
}

}  // namespace motor::testing_select
