#include "study/model/age_group.h"

#include <utility>

#include "text/utf8.h"

namespace study {

namespace {

// The whole of a text as a number of years, blanks around it aside.
std::optional<int> years(std::string_view text) {
  const std::string digits = text::trim(text);
  if (digits.empty() || digits.size() > 3) return std::nullopt;
  int number = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + (digit - '0');
  }
  return number;
}

// The years from `first` to `last`, both included.
std::optional<AgeGroup> closed(std::optional<int> first, std::optional<int> last) {
  if (!first || !last || *last < *first) return std::nullopt;
  std::string name = std::to_string(*first);
  if (*last > *first) name += "-" + std::to_string(*last);
  return AgeGroup{std::move(name), static_cast<double>(*first), *last + 1.0};
}

std::optional<AgeGroup> open(std::optional<int> first) {
  if (!first) return std::nullopt;
  return AgeGroup{std::to_string(*first) + " y más", static_cast<double>(*first), std::nullopt};
}

}  // namespace

std::optional<AgeGroup> parseAgeGroup(std::string_view text) {
  const std::string plain = text::withoutAccents(text::lower(text::compose(text::trim(text))));
  const std::string_view all = plain;

  if (all.starts_with('<')) {
    const std::optional<int> end = years(all.substr(1));
    return end ? closed(0, *end - 1) : std::nullopt;
  }
  for (const std::string_view ending : {"+", "y mas", "o mas"}) {
    if (all.ends_with(ending)) return open(years(all.substr(0, all.size() - ending.size())));
  }
  for (const std::string_view dash : {"-", "–"}) {
    if (const std::size_t at = all.find(dash); at != std::string_view::npos) {
      return closed(years(all.substr(0, at)), years(all.substr(at + dash.size())));
    }
  }
  const std::optional<int> year = years(all);
  return closed(year, year);
}

}  // namespace study
