#include "study/input/csv_file.h"

#include <algorithm>
#include <utility>

#include "study/input/input_text.h"
#include "text/utf8.h"

namespace study {

namespace {

std::string fields(std::size_t count) { return std::to_string(count) + (count == 1 ? " field" : " fields"); }

}  // namespace

CsvFile::CsvFile(const std::filesystem::path& folder, const FileFaults& faults, std::vector<CsvColumn> columns)
    : faults_(faults), columns_(std::move(columns)), places_(columns_.size()) {
  std::optional<std::string> text = readText(folder, faults_);
  if (!text) return;
  text_ = std::move(*text);
  separator_ = separatorOf(text_);
  records_.emplace(text_, separator_);
  readHeader();
}

std::string CsvFile::columnNames() const {
  std::string names;
  for (const CsvColumn& column : columns_) names += (names.empty() ? "" : ", ") + std::string(column.name);
  return names;
}

void CsvFile::placeColumn(std::size_t field, std::string_view name) {
  const auto column = std::find_if(columns_.begin(), columns_.end(),
                                   [&](const CsvColumn& c) { return text::equalsIgnoringCase(c.name, name); });
  if (column == columns_.end()) {
    fault(FaultKind::unknownColumn, "the column " + inQuotes(name) + " is not known",
          "remove it, or correct its name to one of: " + columnNames());
    return;
  }
  std::optional<std::size_t>& place = places_[static_cast<std::size_t>(column - columns_.begin())];
  if (place) {
    fault(FaultKind::doubleColumn, "the column " + inQuotes(name) + " is there twice", "remove one of the two");
  }
  place = field;
}

void CsvFile::readHeader() {
  const CsvRecords::State state = records_->next();
  if (state != CsvRecords::State::end && !isSound(state)) {
    records_.reset();
    return;
  }
  const std::vector<std::string_view>& names = records_->fields();
  fieldCount_ = names.size();
  if (fieldCount_ == 1 && columns_.size() > 1 && names.front().find('\t') != std::string_view::npos) {
    fault(FaultKind::wrongSeparator, "the columns are separated by tabs",
          "save the file with commas or semicolons between the fields");
    records_.reset();
    return;
  }
  for (std::size_t i = 0; i < names.size(); ++i) placeColumn(i, trimmed(names[i]));
  bool isComplete = true;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (places_[i] || !columns_[i].isRequired) continue;
    isComplete = false;
    faults_.add(FaultKind::missingColumn, std::max<std::size_t>(records_->line(), 1),
                "the column " + inQuotes(columns_[i].name) + " is missing", "add it, with its name in the first line");
  }
  if (!isComplete) records_.reset();
}

bool CsvFile::isSound(CsvRecords::State state) {
  if (state == CsvRecords::State::unclosedQuote) {
    fault(FaultKind::unclosedQuote, "a quote is opened here and never closed",
          "close it; a quote inside a field in quotes is written twice");
  } else if (state == CsvRecords::State::misplacedQuote) {
    fault(FaultKind::misplacedQuote, "text follows the closing quote of a field",
          "put the whole field in quotes; a quote inside it is written twice");
  }
  return state == CsvRecords::State::record;
}

bool CsvFile::next() {
  if (!records_) return false;
  while (true) {
    const CsvRecords::State state = records_->next();
    if (state == CsvRecords::State::end) return false;
    if (!isSound(state)) {
      if (state == CsvRecords::State::unclosedQuote) return false;
      continue;
    }
    const std::vector<std::string_view>& row = records_->fields();
    if (std::all_of(row.begin(), row.end(), [](std::string_view field) { return trimmed(field).empty(); })) continue;
    const std::size_t count = row.size();
    if (count == fieldCount_) return true;
    fault(FaultKind::fieldCount, "the row has " + fields(count) + ", but the first line has " + fields(fieldCount_),
          "give every column one field; put fields that hold a " + inQuotes(std::string_view(&separator_, 1)) +
              " in quotes");
  }
}

std::string_view CsvFile::operator[](std::size_t column) const {
  const std::optional<std::size_t>& place = places_[column];
  return place ? trimmed(records_->fields()[*place]) : std::string_view();
}

}  // namespace study
