#include "platform/variant.h"

#include <cmath>
#include <limits>

#include "text/number_text.h"

namespace platform {

std::string Variant::text() const {
  if (const auto* number = std::get_if<double>(&value_)) return text::number(*number);
  if (const auto* text = std::get_if<std::string>(&value_)) return *text;
  return "";
}

double Variant::number() const {
  if (const auto* number = std::get_if<double>(&value_)) return *number;
  return text::toNumber(text());
}

std::int16_t Variant::int16() const { return text::toInt16(text()); }
std::int32_t Variant::int32() const { return text::toInt32(text()); }

}  // namespace platform
