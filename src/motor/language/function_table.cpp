#include "motor/language/function_table.h"

#include <cmath>
#include <limits>

#include "motor/language/text_limit.h"
#include "text/utf8.h"

namespace motor {

namespace {

std::string argumentCount(std::size_t minimum, std::size_t maximum) {
  const auto plural = [](std::size_t n) { return std::to_string(n) + (n == 1 ? " argumento" : " argumentos"); };
  if (minimum == maximum) return plural(minimum);
  return "de " + std::to_string(minimum) + " a " + plural(maximum);
}

}  // namespace

double Arguments::number(std::size_t i) const {
  const double* number = values_[i].number();
  if (number == nullptr) reject(i, "se esperaba un número");
  return *number;
}

int Arguments::integer(std::size_t i) const {
  const double rounded = std::round(number(i));
  if (!(std::abs(rounded) <= std::numeric_limits<int>::max())) reject(i, "el número es demasiado grande");
  return static_cast<int>(rounded);
}

std::string Arguments::text(std::size_t i) const {
  if (values_[i].object() != nullptr) reject(i, "se esperaba un texto");
  return values_[i].toText();
}

const ObjectPtr& Arguments::object(std::size_t i) const {
  const ObjectPtr* object = values_[i].object();
  if (object == nullptr || *object == nullptr) reject(i, "se esperaba un objeto del mapa");
  return *object;
}

void Arguments::reject(std::size_t i, const std::string& reason) const {
  throw LanguageError(call_.arguments()[i]->position(), call_.name(),
                      "argumento " + std::to_string(i + 1) + ": " + reason);
}

void FunctionTable::add(std::span<const FunctionEntry> entries) {
  for (const FunctionEntry& entry : entries) add(entry.name, entry.minimum, entry.maximum, entry.run);
}

void FunctionTable::add(std::string_view name, std::size_t minimum, std::size_t maximum,
                        std::function<Value(const Arguments&)> run) {
  Function& function = functions_[std::string(name)];
  function.minimum_ = minimum;
  function.maximum_ = maximum;
  function.run_ = std::move(run);
}

Value FunctionTable::Function::call(const FunctionCall& function, std::span<const Value> arguments) const {
  if (arguments.size() < minimum_ || arguments.size() > maximum_) {
    throw LanguageError(
        function.position(), function.name(),
        "se esperaban " + argumentCount(minimum_, maximum_) + ", no " + std::to_string(arguments.size()));
  }
  Value result = run_(Arguments(function, arguments));
  if (result.number() != nullptr && !std::isfinite(*result.number())) {
    throw LanguageError(function.position(), function.name(), "el resultado no es un número finito");
  }
  if (result.text() != nullptr && result.text()->size() > kLongestText) {
    throw LanguageError(function.position(), function.name(), "el texto sería demasiado largo");
  }
  return result;
}

std::vector<FunctionTable::Signature> FunctionTable::signatures() const {
  std::vector<Signature> all;
  for (const auto& [name, function] : functions_) all.push_back({name, function.minimum_, function.maximum_});
  return all;
}

const FunctionTable::Function& FunctionTable::find(const FunctionCall& function) const {
  const auto found = functions_.find(text::lower(function.name()));
  if (found == functions_.end()) {
    throw LanguageError(function.position(), function.name(), "no es una función conocida");
  }
  return found->second;
}

}  // namespace motor
