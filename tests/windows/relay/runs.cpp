#include "relay/runs.h"

#include <array>
#include <stdexcept>

#include "text/file_text.h"

namespace relay {
namespace {

std::string replaced(const std::string& s, const std::string& what, const std::string& by) {
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = s.find(what); at != std::string::npos; at = s.find(what, from)) {
    result.append(s, from, at - from).append(by);
    from = at + what.size();
  }
  return result.append(s, from);
}

}  // namespace

Run::Run(const std::string& text) {
  std::array<std::string, 4> parts;
  std::size_t at = 0;
  for (std::string& part : parts) {
    if (at > text.size()) throw std::invalid_argument("no run: " + text);
    const std::size_t end = std::min(text.find('|', at), text.size());
    part = text.substr(at, end - at);
    at = end + 1;
  }
  programFolder = parts[1];
  machineFolder = text::toPath(parts[2]);
  if (parts[3].empty()) return;
  const auto file = text::wholeFile(text::toPath(parts[3]));
  if (!file) throw std::invalid_argument("cannot read " + parts[3]);
  script = std::make_unique<headless::ScriptedEngines>(*file);
}

std::string Run::toMachine(const std::string& s) const {
  return replaced(s, programFolder, text::fromPath(machineFolder));
}

std::string Run::toProgram(const std::string& s) const {
  return replaced(s, text::fromPath(machineFolder), programFolder);
}

Run& Runs::at(const std::string& text) { return runs_.try_emplace(text, text).first->second; }

}  // namespace relay
