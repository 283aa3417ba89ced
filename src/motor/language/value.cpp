#include "motor/language/value.h"

#include "text/number_text.h"

namespace motor {

std::string Value::toText() && {
  if (auto* s = std::get_if<std::string>(&value_)) return std::move(*s);
  return static_cast<const Value&>(*this).toText();
}

std::string Value::toText() const& {
  if (const bool* b = logical()) return *b ? "T" : "F";
  if (const double* n = number()) return text::number(*n);
  if (const std::string* s = text()) return *s;
  return "";
}

}  // namespace motor
