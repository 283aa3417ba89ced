#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>

#include "hosts/headless/replay.h"
#include "hosts/windows/win32/wide_text.h"
#include "replay/test_place.h"
#include "replay/windows_world.h"
#include "text/file_text.h"

// Replays a script on the program's real windows, ports and map engine, and writes its transcript:
//
//   veldoria-windows-replay --out FILE [--engine FILE] [--registry FILE] [--log FILE] SCRIPT
//
// Where it does so the environment says (test_place.h); --engine's file is as the relay's machine writes it. The last
// line that is written is "REPLAYED", or what went wrong.
namespace {

namespace fs = std::filesystem;

using Options = std::map<std::wstring, std::wstring>;

Options optionsIn(int count, wchar_t** words) {
  Options options;
  for (int i = 1; i < count; ++i) {
    const std::wstring word = words[i];
    if (!word.starts_with(L"--")) {
      options[L"script"] = word;
    } else if (i + 1 < count) {
      options[word.substr(2)] = words[++i];
    }
  }
  return options;
}

std::string contentsOf(const fs::path& file) {
  auto bytes = text::wholeFile(file);
  if (!bytes) throw std::invalid_argument("cannot read " + text::fromPath(file));
  return *std::move(bytes);
}

void replay(const Options& options, std::ofstream& out) {
  const auto option = [&options](const wchar_t* name) {
    return options.contains(name) ? options.at(name) : std::wstring();
  };
  wintest::TestPlace place = wintest::TestPlace::fromEnvironment();
  place.log = option(L"log");
  place.tellEngine(windows::utf8(option(L"script")), windows::utf8(option(L"engine")));
  std::optional<std::string> registry;
  if (options.contains(L"registry")) registry = contentsOf(options.at(L"registry"));
  const std::string script = contentsOf(option(L"script"));
  fs::current_path(windows::wide(place.app));
  wintest::WindowsWorld world(place.app, registry, place.viewer);
  headless::Replay replay(world, [&out](const std::string& line) { out << line << std::endl; });
  replay.run(script);
}

}  // namespace

int wmain(int count, wchar_t** words) {
  const Options options = optionsIn(count, words);
  if (!options.contains(L"out")) return 2;
  std::ofstream out(fs::path(options.at(L"out")), std::ios::binary);
  try {
    replay(options, out);
    out << "REPLAYED" << std::endl;
    return 0;
  } catch (const std::exception& problem) {
    out << "veldoria-windows-replay: " << problem.what() << std::endl;
    return 1;
  }
}
