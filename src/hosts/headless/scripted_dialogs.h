#pragma once

#include <optional>
#include <string>

#include "hosts/headless/prepared_answers.h"
#include "platform/dialogs.h"

namespace headless {

// Save dialogs that are answered at once: with the name prepared, or cancelled. Help is shown nowhere.
class ScriptedDialogs : public platform::Dialogs {
 public:
  void prepareName(const std::string& name) { answers_.prepare(name); }
  void prepareCancel() { answers_.prepare(std::nullopt); }

  [[nodiscard]] std::string save(const std::string& title, const std::string& filter, const std::string& name) override;
  void help(const std::string& /*file*/, int /*command*/) override {}

 private:
  PreparedAnswers<std::optional<std::string>> answers_;
};

}  // namespace headless
