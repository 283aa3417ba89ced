#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "motor/language/expressions/function_call.h"

namespace motor {

// The arguments of a call, taken as the types that the function needs. A wrong type is a LanguageError at the argument.
class Arguments {
 public:
  Arguments(const FunctionCall& call, std::span<const Value> values) : call_(call), values_(values) {}

  [[nodiscard]] std::size_t count() const { return values_.size(); }
  [[nodiscard]] const Value& operator[](std::size_t i) const { return values_[i]; }
  [[nodiscard]] double number(std::size_t i) const;
  [[nodiscard]] int integer(std::size_t i) const;       // rounded; out of range is an error
  [[nodiscard]] std::string text(std::size_t i) const;  // a number or logical gives its text
  [[nodiscard]] const ObjectPtr& object(std::size_t i) const;
  // Throws LanguageError at argument i.
  [[noreturn]] void reject(std::size_t i, const std::string& reason) const;

 private:
  const FunctionCall& call_;
  std::span<const Value> values_;
};

// A function of the language. Adding one is one entry in a table and one function.
struct FunctionEntry {
  std::string_view name;  // in lower case
  std::size_t minimum;
  std::size_t maximum;  // arguments
  Value (*run)(const Arguments& arguments);
};

// A function that needs the state of whoever offers it, S.
template <typename S>
struct StateFunctionEntry {
  std::string_view name;
  std::size_t minimum;
  std::size_t maximum;
  Value (*run)(S& state, const Arguments& arguments);
};

// The signs of FormatNumber$.
struct NumberSigns {
  std::string decimal = ",";
  std::string thousands = ".";
};

// The functions that an expression may call, by name without regard to case.
class FunctionTable {
 public:
  // A function of the same name gives way.
  void add(std::string_view name, std::size_t minimum, std::size_t maximum, std::function<Value(const Arguments&)> run);
  void add(std::span<const FunctionEntry> entries);

  // The state must outlive the table.
  template <typename S>
  void add(S& state, std::span<const StateFunctionEntry<S>> entries) {
    for (const StateFunctionEntry<S>& entry : entries) {
      add(entry.name, entry.minimum, entry.maximum,
          [&state, run = entry.run](const Arguments& arguments) { return run(state, arguments); });
    }
  }

  // One function, found once for many calls.
  class Function {
   public:
    // Throws LanguageError at the call for too few or too many arguments, and for a result that no expression may
    // have: a number that is not finite, a text that is too long.
    [[nodiscard]] Value call(const FunctionCall& function, std::span<const Value> arguments) const;

   private:
    friend class FunctionTable;
    std::size_t minimum_ = 0;
    std::size_t maximum_ = 0;
    std::function<Value(const Arguments&)> run_;
  };

  // The functions there are, by name.
  struct Signature {
    std::string name;  // in lower case
    std::size_t minimum;
    std::size_t maximum;  // arguments
  };
  [[nodiscard]] std::vector<Signature> signatures() const;

  // Throws LanguageError at the call for a function that does not exist. Good until the table is assigned to.
  [[nodiscard]] const Function& find(const FunctionCall& function) const;
  // Both together.
  [[nodiscard]] Value call(const FunctionCall& function, std::span<const Value> arguments) const {
    return find(function).call(function, arguments);
  }

 private:
  std::map<std::string, Function, std::less<>> functions_;  // by name in lower case
};

// The functions that need nothing but their arguments: numbers, texts, colours.
[[nodiscard]] FunctionTable pureFunctions(const NumberSigns& signs = {});

}  // namespace motor
