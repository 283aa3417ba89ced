#include "hosts/headless/scripted_messages.h"

namespace headless {

platform::Button ScriptedMessages::show(const std::string& /*text*/, int style, const std::string& /*title*/) {
  constexpr int kButtons = 15;  // the part of a style that says which buttons there are
  return answers_.take().value_or((style & kButtons) == platform::kYesNo ? platform::Button::yes
                                                                         : platform::Button::ok);
}

}  // namespace headless
