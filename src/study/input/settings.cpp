#include "study/input/settings.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>
#include <utility>
#include <variant>

#include "study/input/input_text.h"
#include "study/input/names.h"
#include "study/input/settings_text.h"
#include "study/model/study.h"

namespace study {

namespace {

// It stands in one line below maps and tables.
constexpr std::size_t kLongestSource = 200;

class Reader {
 public:
  explicit Reader(const FileFaults& faults) : faults_(faults) {}

  Settings read(const std::vector<Setting>& settings) {
    std::set<std::string> seen;
    for (const Setting& setting : settings) {
      if (!seen.insert(setting.name()).second) {
        add(FaultKind::doubleSetting, setting, "is there twice", "remove one of the two");
      } else if (!isTopLevel(setting) && !isDocument(setting)) {
        add(FaultKind::unknownSetting, setting, "is not known", "remove it, or correct it to one of: " + known());
      }
    }
    if (!seen.contains("years")) {
      faults_.add(FaultKind::missingSetting, 0, "the setting \"years\" is missing", "add it, as years = [1999, 2000]");
    }
    return std::move(settings_);
  }

 private:
  struct Known {
    std::string_view key;
    void (Reader::*read)(const Setting&);
  };
  static const std::array<Known, 6> kTopLevel;
  struct Document {
    std::string_view section;
    DocumentText DocumentTexts::*text;
  };
  static constexpr std::array<Document, 5> kDocuments{{{"presentation", &DocumentTexts::presentation},
                                                       {"methodology", &DocumentTexts::methodology},
                                                       {"use", &DocumentTexts::use},
                                                       {"credits", &DocumentTexts::credits},
                                                       {"help", &DocumentTexts::help}}};

  static std::string known() {
    std::string names;
    for (const Known& setting : kTopLevel) names += (names.empty() ? "" : ", ") + std::string(setting.key);
    for (const Document& document : kDocuments) {
      const std::string section(document.section);
      names += ", " + section + ".title, " + section + ".text";
    }
    return names;
  }

  void add(FaultKind kind, const Setting& setting, const std::string& message, std::string remedy) const {
    faults_.add(kind, setting.line, "the setting " + inQuotes(setting.name()) + " " + message, std::move(remedy));
  }

  bool isTopLevel(const Setting& setting) {
    if (!setting.section.empty()) return false;
    for (const Known& known : kTopLevel) {
      if (known.key != setting.key) continue;
      (this->*known.read)(setting);
      return true;
    }
    return false;
  }

  bool isDocument(const Setting& setting) {
    for (const Document& document : kDocuments) {
      if (document.section != setting.section || (setting.key != "title" && setting.key != "text")) continue;
      DocumentText& target = settings_.texts.*document.text;
      if (const std::string* value = text(setting)) {
        checkProse(faults_, setting.line, "the setting " + inQuotes(setting.name()) + ":", *value);
        (setting.key == "title" ? target.title : target.text) = *value;
      }
      return true;
    }
    return false;
  }

  template <class Value>
  const Value* valueOf(const Setting& setting, const char* expected, const char* example) const {
    const Value* value = std::get_if<Value>(&setting.value);
    if (value == nullptr) {
      const auto* other = std::get_if<OtherValue>(&setting.value);
      if (other != nullptr && other->text.starts_with('\'')) {
        add(FaultKind::settingType, setting, "has its value in single quotes", "write it in double quotes");
      } else {
        add(FaultKind::settingType, setting, "does not have " + std::string(expected) + " for its value",
            "write it as " + setting.key + " = " + example);
      }
    }
    return value;
  }
  const std::string* text(const Setting& setting) const { return valueOf<std::string>(setting, "a text", "\"text\""); }

  void readRegion(const Setting& setting) {
    const std::string* name = text(setting);
    if (name == nullptr || *name == kRegion) return;
    add(FaultKind::wrongRegion, setting,
        "is " + inQuotes(*name) + ", but the program shows the region \"Veldoria\" only",
        "write region = \"Veldoria\", or remove the line");
  }

  void readYears(const Setting& setting) {
    const auto* years = valueOf<std::vector<long>>(setting, "a list of whole numbers", "[1999, 2000]");
    if (years == nullptr) return;
    std::set<int> sorted;
    for (const long year : *years) {
      if (std::find(kProgramYears.begin(), kProgramYears.end(), year) == kProgramYears.end()) {
        add(FaultKind::wrongYear, setting, "holds " + std::to_string(year) + ", which the program has no tab for",
            "give years from 1999 to 2002");
      } else if (!sorted.insert(static_cast<int>(year)).second) {
        add(FaultKind::wrongYear, setting, "holds " + std::to_string(year) + " twice", "give each year once");
      }
    }
    if (years->empty()) add(FaultKind::wrongYear, setting, "holds no year", "give at least one from 1999 to 2002");
    settings_.years.assign(sorted.begin(), sorted.end());
  }

  void readStandard(const Setting& setting) {
    settings_.standardLine = setting.line;
    if (const std::string* name = text(setting)) settings_.standard = *name;
  }

  void readSuppressBelow(const Setting& setting) {
    const long* number = valueOf<long>(setting, "a whole number", "3");
    if (number == nullptr) return;
    if (*number < 0 || *number > 1000) {
      add(FaultKind::settingValue, setting, "is " + std::to_string(*number), "give a number from 0 to 1000");
    } else {
      settings_.suppressBelow = static_cast<int>(*number);
    }
  }

  void readUtmZone(const Setting& setting) {
    const long* zone = valueOf<long>(setting, "a whole number", "30");
    if (zone == nullptr) return;
    if (*zone == 0 || *zone < -60 || *zone > 60) {
      add(FaultKind::settingValue, setting, "is " + std::to_string(*zone),
          "give a zone from 1 to 60, or from -1 to -60 in the south");
    } else {
      settings_.utmZone = static_cast<int>(*zone);
    }
  }

  void readSource(const Setting& setting) {
    const std::string* value = text(setting);
    if (value == nullptr) return;
    checkText(faults_, setting.line, "the source", *value, kLongestSource, FaultKind::settingValue);
    settings_.texts.source = *value;
  }

  FileFaults faults_;
  Settings settings_;
};

const std::array<Reader::Known, 6> Reader::kTopLevel{{{"region", &Reader::readRegion},
                                                      {"years", &Reader::readYears},
                                                      {"standard", &Reader::readStandard},
                                                      {"suppress_below", &Reader::readSuppressBelow},
                                                      {"utm_zone", &Reader::readUtmZone},
                                                      {"source", &Reader::readSource}}};

}  // namespace

Settings readSettings(const std::filesystem::path& folder, FaultLog& log) {
  const FileFaults faults(log, kSettingsFile);
  const std::optional<std::string> text = readText(folder, faults);
  return text ? Reader(faults).read(parseSettings(*text, faults)) : Settings{};
}

}  // namespace study
