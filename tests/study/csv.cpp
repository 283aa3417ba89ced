#include "csv.h"

#include <stdexcept>

namespace studytest {

std::vector<std::vector<std::string>> csvRows(std::string_view text) {
  std::vector<std::vector<std::string>> rows;
  std::vector<std::string> row(1);
  bool isQuoted = false;
  for (const char c : text) {
    if (c == '"') {
      isQuoted = !isQuoted;  // no field of ours holds a quote
    } else if (c == ',' && !isQuoted) {
      row.emplace_back();
    } else if (c == '\n' && !isQuoted) {
      if (!rows.empty() && row.size() != rows.front().size()) throw std::runtime_error("a row is broken: " + row[0]);
      rows.push_back(std::move(row));
      row.assign(1, {});
    } else if (c != '\r') {
      row.back() += c;
    }
  }
  if (row.size() > 1 || !row[0].empty()) throw std::runtime_error("the last row has no end");
  return rows;
}

}  // namespace studytest
