#include "study/input/fault_log.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <string_view>
#include <utility>

#include "text/utf8.h"

namespace study {

void FaultLog::add(FaultKind kind, Fault fault) {
  std::string key = std::to_string(static_cast<int>(kind)) + '\n' + fault.file + '\n' + fault.message;
  if (const auto same = places_.find(key); same != places_.end()) {
    ++kept_[same->second].rows;
    return;
  }
  if (!isFull(kind)) {
    places_.emplace(std::move(key), kept_.size());
    kept_.push_back({std::move(fault), kind});
  }
  ++counts_[static_cast<std::size_t>(kind)];
  ++total_;
}

// Which ones are printed.
std::vector<bool> FaultLog::chosen() const {
  std::vector<bool> chosen(kept_.size());
  std::size_t left = std::min(kept_.size(), InputFaults::kPrinted);
  for (std::size_t turn = 0; left > 0; ++turn) {
    std::map<std::pair<FaultKind, std::string_view>, std::size_t> seen;
    for (std::size_t i = 0; i < kept_.size() && left > 0; ++i) {
      if (seen[{kept_[i].kind, kept_[i].fault.file}]++ != turn) continue;
      chosen[i] = true;
      --left;
    }
  }
  return chosen;
}

void FaultLog::throwIfAny() const {
  if (isEmpty()) return;
  std::map<std::string_view, std::size_t> fileOrder;
  for (const Kept& kept : kept_) fileOrder.try_emplace(kept.fault.file, fileOrder.size());
  std::vector<std::size_t> order(kept_.size());
  std::iota(order.begin(), order.end(), 0U);
  const auto place = [&](std::size_t i) { return std::pair(fileOrder.at(kept_[i].fault.file), kept_[i].fault.line); };
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return place(a) < place(b); });
  const std::vector<bool> isPrinted = chosen();
  std::vector<Fault> sorted;
  std::vector<Fault> printed;
  for (const std::size_t i : order) {
    Fault fault = kept_[i].fault;
    if (kept_[i].rows > 1 && fault.line > 0) {
      fault.message += " (in " + std::to_string(kept_[i].rows) + " rows, of which this is the first)";
    }
    if (isPrinted[i]) printed.push_back(fault);
    sorted.push_back(std::move(fault));
  }
  throw InputFaults(std::move(sorted), printed, total_);
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
