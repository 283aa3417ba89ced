#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "study/input/csv_records.h"
#include "study/input/fault_log.h"

namespace study {

struct CsvColumn {
  std::string_view name;
  bool isRequired = true;
};

// A table of the input, its columns found by their names whatever their order and case. What is wrong with the file
// or with its rows is entered among the faults, and the rows are passed over.
class CsvFile {
 public:
  CsvFile(const std::filesystem::path& folder, const FileFaults& faults, std::vector<CsvColumn> columns);

  // Whether all columns are there; otherwise there are no rows.
  [[nodiscard]] bool isReadable() const { return records_.has_value(); }

  // Goes to the next row; false: there is none.
  bool next();

  // A field of the row by the place of its column among those given, without blanks around it; empty where the file
  // does not have the column.
  [[nodiscard]] std::string_view operator[](std::size_t column) const;
  [[nodiscard]] std::size_t line() const { return records_->line(); }

  // Whether numbers may have a decimal comma: where fields are separated by semicolons.
  [[nodiscard]] bool hasDecimalComma() const { return separator_ == ';'; }

  // Enters a fault of the row.
  void fault(FaultKind kind, std::string message, std::string remedy) const {
    faults_.add(kind, line(), std::move(message), std::move(remedy));
  }
  [[nodiscard]] const FileFaults& faults() const { return faults_; }

 private:
  [[nodiscard]] std::string columnNames() const;
  void readHeader();
  void placeColumn(std::size_t field, std::string_view name);
  [[nodiscard]] bool isSound(CsvRecords::State state);

  FileFaults faults_;
  std::vector<CsvColumn> columns_;
  std::string text_;
  char separator_ = ',';
  std::optional<CsvRecords> records_;
  std::size_t fieldCount_ = 0;
  std::vector<std::optional<std::size_t>> places_;  // by column, of its field
};

}  // namespace study
