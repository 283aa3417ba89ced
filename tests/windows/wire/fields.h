#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wire {

// What one side tells the other at once: a word, and what belongs to it. Any bytes.
using Fields = std::vector<std::string>;

// Each field as its length in bytes, ":" and the bytes, one behind the other.
[[nodiscard]] std::string packed(const Fields& fields);
// The fields again; none where the text is no such list.
[[nodiscard]] std::optional<Fields> unpacked(std::string_view text);

}  // namespace wire
