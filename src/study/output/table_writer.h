#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "study/output/map_projection.h"
#include "study/output/table_object.h"

namespace study {

struct Column {
  enum class Type { integer, number, text };

  std::string name;
  Type type;
  int width = 0;  // characters, of a text
};

using Field = std::variant<int, double, std::string>;

// Writes one map table: NAME.TAB with its .DAT, .MAP and .ID, in windows-1252. The bytes depend on what is written
// alone. Everything throws StudyError when it fails.
class TableWriter {
 public:
  TableWriter(const std::filesystem::path& folder, const std::string& name, std::vector<Column> columns,
              const MapProjection& projection);
  ~TableWriter();

  // One row; the fields match the columns in number and type, texts fit their columns' widths.
  void add(const std::vector<Field>& fields, const TableObject& object);
  // Completes the files; nothing can be added afterwards.
  void close();

 private:
  struct Output;

  std::filesystem::path folder_;
  std::string name_;
  std::vector<Column> columns_;
  std::unique_ptr<Output> output_;
};

}  // namespace study
