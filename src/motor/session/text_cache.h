#pragma once

#include <memory>
#include <string>
#include <unordered_map>

namespace motor {

// What was made of a text, kept for when the same text comes again. Long texts are not kept; a full cache starts anew.
// Values are shared, so that one in use outlives the cache's forgetting it.
template <typename T>
class TextCache {
 public:
  using Pointer = std::shared_ptr<const T>;

  // `make(text)` gives the value of a text that is not known yet; what it throws passes through and nothing is kept.
  // The reference is good until the next call; copy it where the value may be needed for longer.
  template <typename Make>
  [[nodiscard]] const Pointer& get(const std::string& text, Make make) {
    const auto found = values_.find(text);
    if (found != values_.end()) return found->second;
    Pointer value = std::make_shared<const T>(make(text));
    if (text.size() > kLongest) return unkept_ = std::move(value);
    if (values_.size() >= kMost) values_.clear();
    return values_.emplace(text, std::move(value)).first->second;
  }

  void clear() { values_.clear(); }

 private:
  static constexpr std::size_t kLongest = 500;  // bytes
  static constexpr std::size_t kMost = 500;

  std::unordered_map<std::string, Pointer> values_;
  Pointer unkept_;  // made last of a long text
};

}  // namespace motor
