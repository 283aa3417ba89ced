#include "study/command_line.h"

#include <exception>
#include <ostream>

#include "study/application_folder.h"
#include "study/output_folder.h"
#include "study/sample/sample_study.h"

namespace study {

namespace {

constexpr const char* kUsage =
    "usage: study sample OUTPUT\n"
    "  Makes the application folder OUTPUT of a fictional region: its maps, tables and workspaces.\n";

void makeSample(const std::string& output, std::ostream& out) {
  const Progress progress = [&](const std::string& step) { out << step << std::endl; };
  OutputFolder folder(output);
  progress("region, population and deaths");
  const Study study = makeSampleStudy(kSampleSeed);
  writeApplicationFolder(study, folder.draft(), progress);
  folder.commit();
  out << "done: " << study.provinces.size() << " provinces, " << study.zones.size() << " basic health zones in "
      << output << std::endl;
}

}  // namespace

int run(std::span<const std::string> arguments, std::ostream& out, std::ostream& err) {
  if (arguments.empty()) {
    out << kUsage;
    return 0;
  }
  if (arguments.size() != 2 || arguments[0] != "sample" || arguments[1].empty()) {
    err << kUsage;
    return 1;
  }
  try {
    makeSample(arguments[1], out);
    return 0;
  } catch (const std::exception& error) {
    err << "study: " << error.what() << std::endl;
    return 1;
  }
}

}  // namespace study
