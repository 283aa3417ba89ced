#include "study/input/csv_records.h"

#include <utility>

namespace study {

bool CsvRecords::isAtLineEnd() const { return at_ >= text_.size() || text_[at_] == '\n' || text_[at_] == '\r'; }

void CsvRecords::passLineEnd() {
  if (at_ >= text_.size()) return;
  at_ += text_.substr(at_, 2) == "\r\n" ? 2 : 1;
  ++nextLine_;
}

void CsvRecords::readPlainField() {
  const std::size_t start = at_;
  while (!isAtLineEnd() && text_[at_] != separator_) ++at_;
  fields_.push_back(text_.substr(start, at_ - start));
}

CsvRecords::State CsvRecords::readQuotedField() {
  const std::size_t openedOn = nextLine_;
  const std::size_t start = ++at_;
  bool hasDoubled = false;
  while (true) {
    at_ = text_.find('"', at_);
    if (at_ == std::string_view::npos) {
      at_ = text_.size();
      line_ = openedOn;
      return State::unclosedQuote;
    }
    if (text_.substr(at_, 2) != "\"\"") break;
    hasDoubled = true;
    at_ += 2;
  }
  std::string_view field = text_.substr(start, at_ - start);
  ++at_;
  nextLine_ += lineEnds(field);
  if (hasDoubled) {
    std::string plain;
    for (std::size_t i = 0; i < field.size(); ++i) {
      plain += field[i];
      if (field[i] == '"') ++i;
    }
    field = unquoted_.emplace_back(std::move(plain));
  }
  fields_.push_back(field);
  if (isAtLineEnd() || text_[at_] == separator_) return State::record;
  while (!isAtLineEnd() && text_[at_] != separator_) ++at_;
  return State::misplacedQuote;
}

CsvRecords::State CsvRecords::next() {
  fields_.clear();
  unquoted_.clear();
  while (at_ < text_.size() && isAtLineEnd()) passLineEnd();
  if (at_ >= text_.size()) return State::end;

  line_ = nextLine_;
  State state = State::record;
  while (true) {
    if (at_ < text_.size() && text_[at_] == '"') {
      const State field = readQuotedField();
      if (field == State::unclosedQuote) return field;
      if (field == State::misplacedQuote) state = field;
    } else {
      readPlainField();
    }
    if (isAtLineEnd()) break;
    ++at_;  // the separator
  }
  passLineEnd();
  return state;
}

std::size_t lineEnds(std::string_view text) {
  std::size_t ends = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' || (text[i] == '\r' && text.substr(i + 1, 1) != "\n")) ++ends;
  }
  return ends;
}

char separatorOf(std::string_view text) {
  bool isQuoted = false;
  for (const char c : text) {
    if (c == '"') isQuoted = !isQuoted;
    if (isQuoted) continue;
    if (c == ';') return ';';
    if (c == '\n' || c == '\r') break;
  }
  return ',';
}

}  // namespace study
