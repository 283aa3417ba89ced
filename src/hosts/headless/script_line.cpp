#include "hosts/headless/script_line.h"

#include <charconv>

#include "text/failure.h"
#include "text/number_text.h"

namespace headless {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// From the opening quote at `at` to behind the closing one.
Word quotedWord(std::string_view line, std::size_t& at) {
  Word word{"", true};
  for (++at; at < line.size(); ++at) {
    if (line[at] != '"') {
      word.text.push_back(line[at]);
    } else if (at + 1 < line.size() && line[at + 1] == '"') {
      word.text.push_back(line[++at]);
    } else {
      ++at;
      if (at < line.size() && !isBlank(line[at])) throw ScriptError("a blank is missing after a quoted text");
      return word;
    }
  }
  throw ScriptError("a quoted text is not closed");
}

}  // namespace

std::vector<Word> splitWords(std::string_view line) {
  std::vector<Word> words;
  for (std::size_t at = 0; at < line.size();) {
    if (isBlank(line[at])) {
      ++at;
    } else if (line[at] == '"') {
      words.push_back(quotedWord(line, at));
    } else {
      const std::size_t end = std::min(line.find_first_of(" \t", at), line.size());
      words.push_back({std::string(line.substr(at, end - at)), false});
      at = end;
    }
  }
  return words;
}

ScriptLine::ScriptLine(std::string_view line) : words_(splitWords(line)) {
  if (words_.empty()) throw ScriptError("a word was expected");
}

const Word& ScriptLine::word(const std::string& what) {
  if (!hasMore()) throw ScriptError(verb() + ": " + what + " is missing");
  return words_[next_++];
}

int ScriptLine::wholeNumber(const std::string& what) {
  const std::string& s = text(what);
  int value = 0;
  const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), value);
  if (s.empty() || error != std::errc() || end != s.data() + s.size()) {
    throw ScriptError(verb() + ": " + what + " is no whole number: " + s);
  }
  return value;
}

double ScriptLine::number(const std::string& what) {
  const std::string& s = text(what);
  try {
    return text::toNumber(s);
  } catch (const Failure&) {
    throw ScriptError(verb() + ": " + what + " is no number: " + s);
  }
}

void ScriptLine::finish() const {
  if (hasMore()) throw ScriptError(verb() + ": too many words, from \"" + words_[next_].text + "\" on");
}

}  // namespace headless
