#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "hosts/headless/embedded/embedded_engine.h"
#include "hosts/headless/headless_world.h"
#include "hosts/headless/replay.h"
#include "hosts/headless/scripted_engine.h"
#include "text/file_text.h"

namespace {

constexpr const char* kUsage =
    "replay --app FOLDER [--engine embedded | --engine scripted FILE] [--registry FILE] [--quiet KIND,...] SCRIPT\n";

struct Arguments {
  std::string app;
  std::optional<std::string> engineFile;
  std::optional<std::string> registryFile;
  std::set<std::string> quiet;
  std::string script;
};

std::set<std::string> kindsIn(const std::string& list) {
  std::set<std::string> kinds;
  for (std::size_t at = 0; at <= list.size();) {
    const std::size_t end = std::min(list.find(',', at), list.size());
    const std::string kind = list.substr(at, end - at);
    if (!headless::lineKinds().contains(kind)) throw std::invalid_argument("--quiet: no kind of line: " + kind);
    kinds.insert(kind);
    at = end + 1;
  }
  return kinds;
}

Arguments parsed(const std::vector<std::string>& words) {
  Arguments result;
  std::size_t at = 0;
  const auto value = [&](const std::string& option) -> const std::string& {
    if (at >= words.size()) throw std::invalid_argument(option + ": a value is missing");
    return words[at++];
  };
  while (at < words.size()) {
    const std::string& word = words[at++];
    if (word == "--app") {
      result.app = value(word);
    } else if (word == "--engine") {
      const std::string& kind = value(word);
      if (kind == "scripted") {
        result.engineFile = value(word);
      } else if (kind != "embedded") {
        throw std::invalid_argument("--engine: neither embedded nor scripted: " + kind);
      }
    } else if (word == "--registry") {
      result.registryFile = value(word);
    } else if (word == "--quiet") {
      result.quiet = kindsIn(value(word));
    } else if (word.starts_with("--") || !result.script.empty()) {
      throw std::invalid_argument("not understood: " + word);
    } else {
      result.script = word;
    }
  }
  if (result.app.empty() || result.script.empty()) throw std::invalid_argument("--app and SCRIPT are needed");
  return result;
}

std::string contentsOf(const std::string& file) {
  auto bytes = text::wholeFile(file);
  if (!bytes) throw std::invalid_argument("cannot read " + file);
  return *std::move(bytes);
}

// The path that the program is given: absolute, without a separator at its end.
std::string applicationFolder(const std::string& written) {
  namespace fs = std::filesystem;
  if (!fs::is_directory(written)) throw std::invalid_argument("--app: no folder: " + written);
  return text::fromPath(fs::canonical(written));
}

// Runs the script; what is wrong with a file is said with its name.
void replay(const Arguments& arguments) {
  const std::string folder = applicationFolder(arguments.app);
  std::optional<std::string> registry;
  if (arguments.registryFile) registry = contentsOf(*arguments.registryFile);
  const std::string script = contentsOf(arguments.script);
  std::unique_ptr<headless::EngineHost> engines;
  if (arguments.engineFile) {
    const std::string file = contentsOf(*arguments.engineFile);
    try {
      engines = std::make_unique<headless::ScriptedEngines>(file);
    } catch (const std::invalid_argument& problem) {
      throw std::invalid_argument(*arguments.engineFile + ": " + problem.what());
    }
  } else {
    engines = std::make_unique<headless::EmbeddedEngine>(folder);
  }
  std::optional<headless::HeadlessWorld> world;
  try {
    world.emplace(folder, registry, *engines);
  } catch (const std::invalid_argument& problem) {
    throw std::invalid_argument(arguments.registryFile.value_or("") + ": " + problem.what());
  }
  headless::Replay replay(
      *world, [](const std::string& line) { std::cout << line << '\n'; }, arguments.quiet);
  try {
    replay.run(script);
  } catch (const headless::ScriptError& problem) {
    throw std::invalid_argument(arguments.script + ": " + problem.what());
  }
}

}  // namespace

int main(int count, char** words) {
  try {
    const Arguments arguments = parsed({words + 1, words + count});
    replay(arguments);
    return 0;
  } catch (const std::exception& problem) {
    std::cout.flush();
    std::cerr << "replay: " << problem.what() << '\n';
    if (count < 2) std::cerr << kUsage;
    return 1;
  }
}
