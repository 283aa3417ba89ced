#include "motor/session/variables.h"

#include <cstdint>

#include "motor/language/error.h"
#include "motor/tables/geometry.h"
#include "text/utf8.h"

namespace motor {
namespace {

// Objects may be shared, or be copies in the session's coordinates: each counts whole.
std::size_t bytesOf(const Value& value) {
  if (const std::string* text = value.text()) return text->size();
  if (const ObjectPtr* object = value.object(); object != nullptr && *object) {
    const MapObject& shape = **object;
    return sizeof(shape) + shape.points.size() * sizeof(Point) + shape.parts.size() * sizeof(std::uint32_t) +
           shape.text.size();
  }
  return 0;
}

}  // namespace

void Variables::declare(const std::string& name, Value value) {
  const std::string key = text::lower(name);
  const auto known = values_.find(key);
  if (known != values_.end()) {
    changeBytes(bytesOf(known->second), bytesOf(value));
    known->second = std::move(value);
    return;
  }
  if (values_.size() >= kMost) throw EngineError("no puede haber más de " + std::to_string(kMost) + " variables");
  changeBytes(0, key.size() + bytesOf(value));
  values_.emplace(key, std::move(value));
}

void Variables::forget(const std::string& name) {
  const auto known = values_.find(text::lower(name));
  if (known == values_.end()) return;
  changeBytes(known->first.size() + bytesOf(known->second), 0);
  values_.erase(known);
}

void Variables::assign(const std::string& name, Value value) {
  Value& held = values_.at(text::lower(name));
  changeBytes(bytesOf(held), bytesOf(value));
  held = std::move(value);
}

const Value* Variables::find(const std::string& name) const {
  const auto known = values_.find(text::lower(name));
  return known == values_.end() ? nullptr : &known->second;
}

void Variables::changeBytes(std::size_t before, std::size_t after) {
  const std::size_t others = bytes_ - before;
  if (after > before && others + after > kMostBytes) {
    throw EngineError("las variables no pueden ocupar en total más de " + std::to_string(kMostBytes / 1'000'000) +
                      " MB");
  }
  bytes_ = others + after;
}

}  // namespace motor
