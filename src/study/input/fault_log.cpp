#include "study/input/fault_log.h"

#include <algorithm>
#include <map>
#include <utility>

#include "text/utf8.h"

namespace study {

void FaultLog::add(FaultKind kind, Fault fault) {
  if (!isFull(kind)) kept_.push_back(std::move(fault));
  ++counts_[static_cast<std::size_t>(kind)];
  ++total_;
}

void FaultLog::throwIfAny() const {
  if (isEmpty()) return;
  std::map<std::string, std::size_t> fileOrder;
  for (const Fault& fault : kept_) fileOrder.try_emplace(fault.file, fileOrder.size());
  std::vector<Fault> sorted = kept_;
  std::stable_sort(sorted.begin(), sorted.end(), [&](const Fault& a, const Fault& b) {
    return std::pair(fileOrder.at(a.file), a.line) < std::pair(fileOrder.at(b.file), b.line);
  });
  throw InputFaults(std::move(sorted), total_);
}

std::string inQuotes(std::string_view text) {
  constexpr std::size_t kLongest = 80;
  std::string shown = text::left(text.substr(0, 8 * kLongest), kLongest);
  const bool isCut = shown.size() < text.size();
  for (char& c : shown) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = '?';
  }
  return '"' + shown + (isCut ? "...\"" : "\"");
}

std::string asList(const std::vector<std::string>& texts) {
  std::string list;
  for (const std::string& text : texts) list += (list.empty() ? "" : ", ") + inQuotes(text);
  return list;
}

}  // namespace study
