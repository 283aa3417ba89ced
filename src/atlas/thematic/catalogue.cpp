#include "atlas/thematic/catalogue.h"

#include <algorithm>

#include "text/collation.h"
#include "text/utf8.h"

namespace atlas {

std::vector<std::string> catalogueFrames(platform::Files& files, const std::string& applicationFolder) {
  std::vector<std::string> frames = files.folders(applicationFolder + "\\Tablas\\Tematicos\\1999\\Ambos sexos");
  // A file system may keep accents apart from their letters; the map tables do not.
  for (std::string& frame : frames) frame = text::compose(frame);
  std::erase_if(frames, [](const std::string& frame) { return text::equalsIgnoringCase(frame, kWholeRegion); });
  std::ranges::sort(frames, text::CollationLess{});
  frames.insert(frames.begin(), kWholeRegion);
  return frames;
}

std::string pathInYear(const ThematicMap& map) {
  const std::string unit = map.isWholeRegion ? map.unit + "\\" : "";
  return map.sex + "\\" + map.frame + "\\" + unit + map.indicator + ".wor";
}

std::string yearFolder(const std::string& applicationFolder, const std::string& year) {
  return applicationFolder + "\\Tablas\\Tematicos\\" + year + "\\";
}

std::string defaultPathInYear() { return "Ambos Sexos\\Veldoria\\Zonas Básicas\\Población.wor"; }

}  // namespace atlas
