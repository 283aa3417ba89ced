#include "atlas/callbacks/callback_message.h"

#include "text/failure.h"
#include "text/utf8.h"

namespace atlas {
namespace {

constexpr const char* kPrefix = "MI:";
constexpr std::size_t kPrefixLength = 3;

}  // namespace

bool isCallbackMessage(const std::string& message) { return text::left(message, kPrefixLength) == kPrefix; }

CallbackFields callbackFields(const std::string& message) {
  CallbackFields fields;
  const std::size_t length = text::length(message);
  std::size_t start = kPrefixLength + 1;
  for (std::size_t index = 1; start < length; ++index) {
    if (index >= fields.size()) throw failures::subscript();
    const std::size_t comma = text::find(message, ",", start);
    if (comma == 0) {
      fields[index] = text::mid(message, start);
      break;
    }
    fields[index] = text::mid(message, start, comma - start);
    start = comma + 1;
  }
  return fields;
}

}  // namespace atlas
