#include "hosts/headless/transcript.h"

#include "text/utf8.h"

namespace headless {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string replaced(std::string_view s, std::string_view what, std::string_view by) {
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = s.find(what); at != std::string_view::npos; at = s.find(what, from)) {
    result.append(s.substr(from, at - from)).append(by);
    from = at + what.size();
  }
  return result.append(s.substr(from));
}

}  // namespace

Transcript::Transcript(Sink sink, std::string applicationFolder)
    : sink_(std::move(sink)), applicationFolder_(std::move(applicationFolder)) {}

std::string Transcript::handleName(std::int64_t handle) const {
  const std::string digits = std::to_string(handle);
  const auto found = handles_.find(digits);
  return found == handles_.end() ? digits : found->second;
}

std::string Transcript::numberName(const std::string& digits) const {
  if (digits == map_) return "<map>";
  const auto handle = handles_.find(digits);
  return handle == handles_.end() ? digits : "<hwnd:" + handle->second + ">";
}

// Whole numbers only: digits of a longer number or of a decimal fraction are nobody's handle.
std::string Transcript::withNumbersNamed(std::string_view line) const {
  std::string result;
  std::size_t at = 0;
  while (at < line.size()) {
    if (!isDigit(line[at])) {
      result.push_back(line[at++]);
      continue;
    }
    std::size_t end = at;
    while (end < line.size() && isDigit(line[end])) ++end;
    const bool isFraction = at > 1 && line[at - 1] == '.' && isDigit(line[at - 2]);
    const bool hasFraction = end + 1 < line.size() && line[end] == '.' && isDigit(line[end + 1]);
    const std::string digits(line.substr(at, end - at));
    result += isFraction || hasFraction ? digits : numberName(digits);
    at = end;
  }
  return result;
}

std::string Transcript::asWritten(std::string_view line) const {
  const bool isEngineCall = line.starts_with("do ") || line.starts_with("eval ");
  std::string result = isEngineCall ? withNumbersNamed(line) : std::string(line);
  if (!applicationFolder_.empty()) result = replaced(result, applicationFolder_, "<app>");
  result = replaced(replaced(replaced(result, "\r\n", "↵"), "\n", "↵"), "\r", "↵");
  std::size_t blanks = 0;
  while (!result.empty() && result.back() == ' ') {
    result.pop_back();
    ++blanks;
  }
  for (; blanks > 0; --blanks) result += "·";
  return result;
}

void Transcript::write(const std::string& line) { write(line.substr(0, line.find(' ')), line); }

void Transcript::write(const std::string& kind, const std::string& line) {
  if (!closed_ && !hushed_.contains(kind)) sink_(asWritten(line));
}

}  // namespace headless
