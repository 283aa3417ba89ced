#pragma once

#include <cstddef>
#include <map>
#include <string>

#include "motor/language/value.h"

namespace motor {

// The variables of a session, by name in any case. There may be many of them and long ones, but not without end.
class Variables {
 public:
  static constexpr std::size_t kMost = 10'000;
  // Bytes of all names and of what the variables hold, texts and objects.
  static constexpr std::size_t kMostBytes = 256'000'000;

  // A variable that is there already starts anew with the value. Throws EngineError when there would be too many.
  void declare(const std::string& name, Value value);
  // Does nothing for a name that is not declared.
  void forget(const std::string& name);
  // For a name that is declared. Throws EngineError, and the variable keeps its value, when all of them would hold too
  // much.
  void assign(const std::string& name, Value value);
  // Null for a name that is not declared. Good until the variables change.
  [[nodiscard]] const Value* find(const std::string& name) const;

 private:
  // Throws EngineError when there is no room for so many bytes in the place of those.
  void changeBytes(std::size_t before, std::size_t after);

  std::map<std::string, Value> values_;  // by name in lower case
  std::size_t bytes_ = 0;
};

}  // namespace motor
