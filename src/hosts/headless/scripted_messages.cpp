#include "hosts/headless/scripted_messages.h"

namespace headless {

platform::Button ScriptedMessages::show(const std::string& /*text*/, int style, const std::string& /*title*/) {
  constexpr int kButtons = 15;  // the part of a style that says which buttons there are
  if (answers_.empty()) return (style & kButtons) == platform::kYesNo ? platform::Button::yes : platform::Button::ok;
  const platform::Button answer = answers_.front();
  answers_.pop_front();
  return answer;
}

}  // namespace headless
