#include "wire/fields.h"

#include <charconv>

namespace wire {

std::string packed(const Fields& fields) {
  std::string result;
  for (const std::string& field : fields) result.append(std::to_string(field.size())).append(":").append(field);
  return result;
}

std::optional<Fields> unpacked(std::string_view text) {
  Fields fields;
  while (!text.empty()) {
    std::size_t size = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), size);
    if (error != std::errc() || end == text.data() + text.size() || *end != ':') return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    if (size > text.size()) return std::nullopt;
    fields.emplace_back(text.substr(0, size));
    text.remove_prefix(size);
  }
  return fields;
}

}  // namespace wire
