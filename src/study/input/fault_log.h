#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "study/input/fault.h"

namespace study {

// What can be wrong with an input.
enum class FaultKind {
  missingFile,
  unreadableFile,
  notUtf8,
  missingColumn,
  unknownColumn,
  doubleColumn,
  fieldCount,
  wrongSeparator,
  noRows,
  unclosedQuote,
  misplacedQuote,
  notANumber,
  negativeNumber,
  fractionalNumber,
  tooLargeNumber,
  tooLargeTotal,
  unknownZone,
  unknownSex,
  unknownAgeGroup,
  unknownCause,
  unknownYear,
  doubleRow,
  impossibleDeath,
  ageGroupOverlap,
  ageGroupGap,
  missingAgeGroup,
  missingPopulation,
  zoneWithoutPopulation,
  deathsWithoutPopulation,
  settingsSyntax,
  unknownSetting,
  doubleSetting,
  missingSetting,
  settingType,
  settingValue,
  wrongRegion,
  wrongYear,
  unknownStandard,
  standardGroup,
  badWeight,
  allWeightsZero,
  emptyText,
  badText,
  unknownList,
  doubleCause,
  sumsNothing,
  sumsTwice,
  codeInNoBroadGroup,
  codeInTwoBroadGroups,
  missingThematicCause,
  severalZonesFiles,
  zonesLayer,
  missingAttribute,
  noZones,
  noCoordinateSystem,
  notProjectable,
  noPolygon,
  wrongPlace,
  wrongArea,
  invalidPolygon,
  tooSmallZone,
  overlap,
  doubleZone,
  provinceCase,
  provinceLikeRegion,
  badName,
  count
};

// Collects the faults of an input. One that is told of many rows in the same words, such as a name that is misspelt in
// all of them, is one fault: its first row is named, and how many there are. Of each kind the first ones are kept and
// the others counted, so that a broken file of a million lines does not fill the memory.
class FaultLog {
 public:
  static constexpr std::size_t kKeptPerKind = InputFaults::kPrinted;

  void add(FaultKind kind, Fault fault);

  [[nodiscard]] bool isEmpty() const { return total_ == 0; }
  [[nodiscard]] std::size_t count(FaultKind kind) const { return counts_[static_cast<std::size_t>(kind)]; }
  // Whether another fault of the kind would only be counted, so that its words may be short.
  [[nodiscard]] bool isFull(FaultKind kind) const { return count(kind) >= kKeptPerKind; }

  // Throws InputFaults where there are any: files in the order of their first fault, lines ascending. Where there are
  // more than are printed, all kinds have their turn, the first of each before the second of any.
  void throwIfAny() const;

 private:
  struct Kept {
    Fault fault;
    FaultKind kind;
    std::size_t rows = 1;
  };
  [[nodiscard]] std::vector<bool> chosen() const;

  std::vector<Kept> kept_;
  std::unordered_map<std::string, std::size_t> places_;  // of kept ones by kind, file and words
  std::array<std::size_t, static_cast<std::size_t>(FaultKind::count)> counts_{};
  std::size_t total_ = 0;
};

// The faults of one file.
class FileFaults {
 public:
  FileFaults(FaultLog& log, std::string file) : log_(&log), file_(std::move(file)) {}

  [[nodiscard]] const std::string& file() const { return file_; }
  [[nodiscard]] FaultLog& log() const { return *log_; }

  void add(FaultKind kind, std::size_t line, std::string message, std::string remedy) const {
    log_->add(kind, {file_, line, std::move(message), std::move(remedy)});
  }

 private:
  FaultLog* log_;
  std::string file_;
};

// A text of the input inside a message: in quotes, cut where it is very long, control characters as "?".
[[nodiscard]] std::string inQuotes(std::string_view text);

// Texts as a message lists them: "a", "b", "c".
[[nodiscard]] std::string asList(const std::vector<std::string>& texts);

}  // namespace study
