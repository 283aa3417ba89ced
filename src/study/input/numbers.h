#pragma once

#include <optional>
#include <string_view>

#include "study/input/csv_file.h"

namespace study {

// No zone has as many persons, or deaths, of one sex and age in a year.
inline constexpr long kLargestCount = 10'000'000;

// A field of the current row as a count: a whole number from 0 to kLargestCount. None, with a fault, for anything
// else; `what` names the field in it.
[[nodiscard]] std::optional<long> readCount(const CsvFile& file, std::string_view field, std::string_view what);

// A field as a number that may have a fraction, with a decimal point, or a decimal comma where the file separates by
// semicolons. None, with a fault, for anything else.
[[nodiscard]] std::optional<double> readNumber(const CsvFile& file, std::string_view field, std::string_view what);

}  // namespace study
