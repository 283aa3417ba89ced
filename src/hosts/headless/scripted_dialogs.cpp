#include "hosts/headless/scripted_dialogs.h"

namespace headless {

std::string ScriptedDialogs::save(const std::string& /*title*/, const std::string& /*filter*/,
                                  const std::string& name) {
  if (answers_.empty()) return name;
  const std::optional<std::string> answer = answers_.front();
  answers_.pop_front();
  return answer.value_or(name);
}

}  // namespace headless
