#include "study/command_line.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <filesystem>
#include <map>
#include <ostream>

#include "study/application_folder.h"
#include "study/generator/generator.h"
#include "study/input/read_input.h"
#include "study/interruption.h"
#include "study/model/study_error.h"
#include "study/output/output_folder.h"
#include "study/reports/offscreen_toolkit.h"
#include "study/temporary_folder.h"

namespace study {

namespace {

constexpr const char* kUsage =
    "usage: study build INPUT OUTPUT\n"
    "  Makes the application folder OUTPUT from the deaths, population, causes and zones in the folder INPUT\n"
    "  (docs/study-input.md tells what they look like). Nothing is written where the input has a fault.\n"
    "study sample OUTPUT\n"
    "  Makes the application folder of a fictional region.\n"
    "study generate INPUT [--provinces N] [--zones N] [--vertices N] [--years 1999,2000,...] [--seed N]\n"
    "  Makes the input of a fictional region, in a folder that holds none yet.\n";

using Arguments = std::span<const std::string>;

// Wrong words on the command line; what() is empty where the usage says it all.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// A folder is not named like an option: a mistyped one is more likely.
void expectFolders(Arguments folders) {
  for (const std::string& folder : folders) {
    if (folder.empty()) throw UsageError("");
    if (folder.starts_with('-')) throw UsageError("there is no option " + folder);
  }
}

void build(const std::filesystem::path& input, const std::string& output, const Progress& progress) {
  OutputFolder folder(output);
  folder.refuseInput(input);
  const Study study = readInput(input, progress);
  const reports::OffscreenToolkit toolkit;
  try {
    writeApplicationFolder(study, folder.openDraft(), progress);
    progress("Moving the study to its place");
    folder.commit();
  } catch (const StudyError&) {
    if (const std::string reason = folder.whyFull(); !reason.empty()) throw StudyError(reason);
    throw;
  }
  progress("Done: " + std::to_string(study.provinces.size()) + " provinces, " + std::to_string(study.zones.size()) +
           " basic health zones in " + output);
}

void buildCommand(Arguments arguments, const Progress& progress) {
  if (arguments.size() != 2) throw UsageError("");
  expectFolders(arguments);
  build(arguments[0], arguments[1], progress);
}

void sampleCommand(Arguments arguments, const Progress& progress) {
  if (arguments.size() != 1) throw UsageError("");
  expectFolders(arguments);
  const TemporaryFolder input;
  generator::generateInput({}, input.path(), progress);
  build(input.path(), arguments[0], progress);
}

template <class Number>
Number numberIn(std::string_view text, const std::string& option) {
  Number number = 0;
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (problem != std::errc() || end != text.data() + text.size()) {
    throw UsageError(option + " takes a whole number, not \"" + std::string(text) + "\"");
  }
  return number;
}

std::vector<int> yearsIn(std::string_view text, const std::string& option) {
  std::vector<int> years;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(',', start), text.size());
    years.push_back(numberIn<int>(text.substr(start, end - start), option));
    start = end + 1;
  }
  return years;
}

generator::GeneratorSettings settingsIn(Arguments options) {
  generator::GeneratorSettings settings;
  for (std::size_t i = 0; i < options.size(); i += 2) {
    const std::string& option = options[i];
    if (i + 1 == options.size()) throw UsageError(option + " needs a value");
    const std::string& value = options[i + 1];
    if (option == "--provinces") {
      settings.provinces = numberIn<std::size_t>(value, option);
    } else if (option == "--zones") {
      settings.zones = numberIn<std::size_t>(value, option);
    } else if (option == "--vertices") {
      settings.vertices = numberIn<std::size_t>(value, option);
    } else if (option == "--seed") {
      settings.seed = numberIn<std::uint64_t>(value, option);
    } else if (option == "--years") {
      settings.years = yearsIn(value, option);
    } else {
      throw UsageError("there is no option " + option);
    }
  }
  return settings;
}

void generateCommand(Arguments arguments, const Progress& progress) {
  if (arguments.empty()) throw UsageError("");
  expectFolders(arguments.first(1));
  generator::generateInput(settingsIn(arguments.subspan(1)), arguments[0], progress);
}

using Command = void (*)(Arguments, const Progress&);
const std::map<std::string_view, Command>& commands() {
  static const std::map<std::string_view, Command> table{
      {"build", buildCommand}, {"sample", sampleCommand}, {"generate", generateCommand}};
  return table;
}

}  // namespace

int run(std::span<const std::string> arguments, std::ostream& out, std::ostream& err) {
  if (arguments.empty() || std::find(arguments.begin(), arguments.end(), "--help") != arguments.end()) {
    out << kUsage;
    return 0;
  }
  try {
    const auto command = commands().find(arguments[0]);
    if (command == commands().end()) throw UsageError("");
    const Interruption interruption;
    command->second(arguments.subspan(1), [&](const std::string& step) {
      if (!step.empty()) out << step << std::endl;
      interruption.check();
    });
    return 0;
  } catch (const UsageError& error) {
    if (*error.what() != '\0') err << "study: " << error.what() << '\n';
    err << kUsage;
  } catch (const InputFaults& faults) {
    err << faults.what() << "\nstudy: nothing was written" << std::endl;
  } catch (const Interrupted& interrupted) {
    err << "study: interrupted; nothing was written" << std::endl;
    return 128 + interrupted.signal;
  } catch (const std::exception& error) {
    err << "study: " << error.what() << std::endl;
  }
  return 1;
}

}  // namespace study
