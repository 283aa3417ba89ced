#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace platform {

// What an engine's expression gives: nothing, a number or a text.
class Variant {
 public:
  Variant() = default;
  Variant(const std::string& text) : value_(text) {}        // NOLINT(google-explicit-constructor)
  Variant(std::string&& text) : value_(std::move(text)) {}  // NOLINT(google-explicit-constructor)
  Variant(const char* text) : value_(std::string(text)) {}  // NOLINT(google-explicit-constructor)
  Variant(double number) : value_(number) {}                // NOLINT(google-explicit-constructor)

  // The value as text: nothing is "", a number has "." and the shortest digits that read back the same.
  [[nodiscard]] std::string text() const;

  // The value as a number: nothing and "" are 0; a text that is no number fails with 13.
  [[nodiscard]] double number() const;

  // The value as a whole number of 16 or 32 bits, rounded half to even; out of range fails with 6.
  [[nodiscard]] std::int16_t int16() const;
  [[nodiscard]] std::int32_t int32() const;

  [[nodiscard]] bool operator==(const Variant&) const = default;

 private:
  std::variant<std::monostate, double, std::string> value_;
};

}  // namespace platform
