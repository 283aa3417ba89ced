#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace study {

// The records of a separated text after RFC 4180: fields in quotes may hold separators, line ends and doubled quotes.
// Line ends are LF, CRLF or CR. Lines without anything are passed over.
class CsvRecords {
 public:
  enum class State {
    record,         // one was read
    end,            // there are no more
    unclosedQuote,  // as `end`; `line` is where the quote was opened
    misplacedQuote  // a record was read in which text follows a closing quote
  };

  // `text` outlives this.
  CsvRecords(std::string_view text, char separator) : text_(text), separator_(separator) {}

  State next();

  // Of the record read last; valid until the next one.
  [[nodiscard]] const std::vector<std::string_view>& fields() const { return fields_; }
  // On which it begins, from 1.
  [[nodiscard]] std::size_t line() const { return line_; }

 private:
  [[nodiscard]] bool isAtLineEnd() const;
  void passLineEnd();
  void readPlainField();
  State readQuotedField();

  std::string_view text_;
  char separator_;
  std::size_t at_ = 0;
  std::size_t nextLine_ = 1;
  std::size_t line_ = 0;
  std::vector<std::string_view> fields_;
  std::deque<std::string> unquoted_;  // fields that held doubled quotes
};

// How many lines end in a text, by LF, CRLF or CR.
[[nodiscard]] std::size_t lineEnds(std::string_view text);

// The semicolon where the first line has one outside quotes, otherwise the comma.
[[nodiscard]] char separatorOf(std::string_view text);

}  // namespace study
