#include "hosts/desktop/ports/qt_programs.h"

#include "platform/paths.h"
#include "text/failure.h"

namespace desktop {

void QtPrograms::start(const std::string& commandLine) {
  const std::vector<std::string> words = commandWords(commandLine);
  const KnownProgram* program = words.empty() ? nullptr : programOfPath(words.front());
  if (program == nullptr || program->stand == Stand::engine || words.size() < 2) throw failures::fileNotFound();
  if (!programs_.open(platform::machinePath(words[1]).string())) throw failures::fileNotFound();
}

std::vector<std::string> commandWords(const std::string& commandLine) {
  std::vector<std::string> words;
  bool quoted = false;
  bool inWord = false;
  for (const char c : commandLine) {
    if (c == '"') {
      quoted = !quoted;
      if (quoted) words.emplace_back();
      inWord = quoted;
    } else if (c == ' ' && !quoted) {
      inWord = false;
    } else {
      if (!inWord) words.emplace_back();
      inWord = true;
      words.back().push_back(c);
    }
  }
  return words;
}

}  // namespace desktop
