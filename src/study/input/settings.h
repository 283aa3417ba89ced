#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "study/input/fault_log.h"
#include "study/model/document_texts.h"

namespace study {

inline constexpr const char* kSettingsFile = "study.toml";

// What the settings say; the defaults are those of an input that does not say it.
struct Settings {
  std::vector<int> years;  // ascending; empty where they are faulty
  std::string standard = "europea 1976";
  std::size_t standardLine = 0;  // where the settings name it
  int suppressBelow = 0;
  std::optional<int> utmZone;  // 1 to 60, negative in the south
  DocumentTexts texts;
};

[[nodiscard]] Settings readSettings(const std::filesystem::path& folder, FaultLog& log);

}  // namespace study
