#include "hosts/headless/scripted_dialogs.h"

namespace headless {

std::string ScriptedDialogs::save(const std::string& /*title*/, const std::string& /*filter*/,
                                  const std::string& name) {
  return answers_.take().value_or(std::nullopt).value_or(name);
}

}  // namespace headless
