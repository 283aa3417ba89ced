#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace headless {

// What is wrong with a script or with the program's answer to one of its lines.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Word {
  std::string text;
  bool isQuoted = false;
};

// The words of a script's line: separated by blanks, or texts in double quotes with "" for a quote inside. Throws
// ScriptError when a quote is not closed or something sticks to one.
[[nodiscard]] std::vector<Word> splitWords(std::string_view line);

// A line of a script: its verb and its arguments, taken one after the other.
class ScriptLine {
 public:
  // A line with at least one word.
  explicit ScriptLine(std::string_view line);

  [[nodiscard]] const std::string& verb() const { return words_.front().text; }
  [[nodiscard]] bool hasMore() const { return next_ < words_.size(); }
  // The next argument; `what` says in the error what was expected.
  const Word& word(const std::string& what);
  const std::string& text(const std::string& what) { return word(what).text; }
  int wholeNumber(const std::string& what);
  double number(const std::string& what);
  // Throws when arguments are left over.
  void finish() const;

 private:
  std::vector<Word> words_;
  std::size_t next_ = 1;
};

}  // namespace headless
