#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

namespace motor {

struct MapObject;
using ObjectPtr = std::shared_ptr<const MapObject>;

// What an expression gives: nothing, a logical, a number (kept as double; whole numbers print without a point), a text
// or a map object.
class Value {
 public:
  Value() = default;
  Value(bool logical) : value_(logical) {}                    // NOLINT(google-explicit-constructor)
  Value(double number) : value_(number) {}                    // NOLINT(google-explicit-constructor)
  Value(int number) : value_(static_cast<double>(number)) {}  // NOLINT(google-explicit-constructor)
  Value(std::string text) : value_(std::move(text)) {}        // NOLINT(google-explicit-constructor)
  Value(const char* text) : value_(std::string(text)) {}      // NOLINT(google-explicit-constructor)
  Value(ObjectPtr object) : value_(std::move(object)) {}      // NOLINT(google-explicit-constructor)

  [[nodiscard]] bool isEmpty() const { return std::holds_alternative<std::monostate>(value_); }
  [[nodiscard]] const bool* logical() const { return std::get_if<bool>(&value_); }
  [[nodiscard]] const double* number() const { return std::get_if<double>(&value_); }
  [[nodiscard]] const std::string* text() const { return std::get_if<std::string>(&value_); }
  [[nodiscard]] const ObjectPtr* object() const { return std::get_if<ObjectPtr>(&value_); }

  // As `Eval` returns it: "T" or "F", shortest digits with ".", the text itself; nothing is "". An object has no text
  // and gives "".
  [[nodiscard]] std::string toText() const&;
  [[nodiscard]] std::string toText() &&;

  [[nodiscard]] bool operator==(const Value&) const = default;

 private:
  std::variant<std::monostate, bool, double, std::string, ObjectPtr> value_;
};

}  // namespace motor
