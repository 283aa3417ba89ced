#pragma once

#include <string>
#include <string_view>

namespace motor {

// A text as the operator Like compares it: without case and accents.
[[nodiscard]] std::u32string foldedForLike(std::string_view text);

// A pattern of the operator Like: % stands for any run of characters, _ for one character; case and accents do not
// count.
class LikePattern {
 public:
  explicit LikePattern(std::string_view pattern);

  [[nodiscard]] bool matches(std::string_view text) const;
  // The same of a text that is folded already.
  [[nodiscard]] bool matchesFolded(const std::u32string& text) const;

 private:
  std::u32string pattern_;
};

// The function Like(text, pattern, escape), which minds case and accents; the escape character takes the next character
// of the pattern as itself.
[[nodiscard]] bool likeExactly(std::string_view text, std::string_view pattern, std::string_view escape);

}  // namespace motor
