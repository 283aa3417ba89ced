#pragma once

#include <string>
#include <vector>

#include "platform/files.h"

// The catalogue of prepared thematic maps: a workspace file for every year, sex, frame, unit and indicator.
namespace atlas {

// The frame that is the whole region; every other one is a province.
inline constexpr const char* kWholeRegion = "Veldoria";

// The frames of the catalogue: the region first, then the provinces in alphabetical order. They are the folders of the
// catalogue's first year.
[[nodiscard]] std::vector<std::string> catalogueFrames(platform::Files& files, const std::string& applicationFolder);

// A choice of map within a year.
struct ThematicMap {
  bool isWholeRegion = true;  // a province has no unit level: its maps exist only by basic health zone
  std::string sex;
  std::string frame;
  std::string unit;
  std::string indicator;
};

// The workspace's path below the year's folder.
[[nodiscard]] std::string pathInYear(const ThematicMap& map);

// The folder of a year's thematic maps, with a "\" at its end.
[[nodiscard]] std::string yearFolder(const std::string& applicationFolder, const std::string& year);

// The workspace shown until something is chosen, below the year's folder.
[[nodiscard]] std::string defaultPathInYear();

}  // namespace atlas
