#pragma once

#include <cstddef>

#include "motor/language/value.h"

namespace motor {

// The bytes of what a Select makes up, added up so that no statement fills the memory.
class SelectMemory {
 public:
  // Each throws EngineError when it is too much altogether.
  void add(std::size_t bytes);
  // Of values that are not made yet, without their texts.
  void addValues(std::size_t count) { add(count * sizeof(Value)); }
  // The text of a value, if it is one.
  void addText(const Value& value) {
    if (const std::string* text = value.text()) add(text->capacity());
  }

 private:
  std::size_t bytes_ = 0;
};

}  // namespace motor
