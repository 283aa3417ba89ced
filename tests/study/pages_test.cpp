#include <gtest/gtest.h>

#include "page_names.h"
#include "raw_figures.h"
#include "shown_figures.h"

// Every figure of every page of tables, against the raw input.
namespace studytest {
namespace {

// Rows of causes: each cause of both lists that the sex can die of, and all causes, 97 a year.
constexpr std::size_t kCauseRows = 97 * kYears.size();

// Calls `use` with each year and sex.
template <class Use>
void eachYearAndSex(const Use& use) {
  for (const std::string year : kYears) {
    for (const std::string sex : kSexes) use(year, sex);
  }
}

std::string causeName(const ResultRow& row, int column) {
  const std::string name = row.text(column);
  return name.empty() ? kAllCauses : name;
}

std::optional<double> perPersons(double number, double persons) {
  return persons > 0 ? std::optional(number / persons * 100'000) : std::nullopt;
}

TEST(LifeLostPages, ShowWhatWasCounted) {
  std::size_t equal = 0;
  eachYearAndSex([&](const std::string& year, const std::string& sex) {
    for (const ListName& list : kLists) {
      ShownFigures expected;
      rawFigures().each(
          "SELECT subjects.name, units.name, lost, early, young FROM facts JOIN people USING (unit, year, choice)"
          " JOIN units USING (unit) JOIN subjects USING (subject)"
          " WHERE year = CAST(? AS INTEGER) AND choice = ? AND list IN (?, '') AND kind <> 'ZonasBasicas'",
          {year, sex, list.list}, [&](const ResultRow& row) {
            expected[{"0", "", causeName(row, 0), row.text(1)}] = decimal(row.number(2));
            expected[{"1", "", causeName(row, 0), row.text(1)}] =
                rate(perPersons(row.number(2), row.number(4)), row.number(3));
          });
      const std::string page = lifeLostPage(year, sex, list);
      equal += countEqual(page, expected, textsOf(readPage(page)));
    }
  });
  EXPECT_EQ(equal, kCauseRows * (kProvinces + 1) * 2);
}

// The deaths and persons of a unit by cause and age group, and of all ages.
ShownFigures deathsByAge(const std::vector<std::string>& unitYearSexList) {
  ShownFigures expected;
  const auto add = [&](const ResultRow& row) {
    expected[{"0", "", causeName(row, 0), row.text(1)}] = count(row.number(2));
    expected[{"1", "", causeName(row, 0), row.text(1)}] = rate(perPersons(row.number(2), row.number(3)), row.number(2));
  };
  const std::string chosen =
      " FROM facts JOIN people USING (unit, year, choice) JOIN units USING (unit) JOIN subjects USING (subject)";
  const std::string where =
      " WHERE kind <> 'ZonasBasicas' AND units.name = ? AND year = CAST(? AS INTEGER) AND choice = ?"
      " AND list IN (?, '')";
  rawFigures().each(
      "SELECT subjects.name, age_group, IFNULL(d, 0), persons.n" + chosen +
          " JOIN persons USING (unit, year, choice) LEFT JOIN died USING (unit, year, choice, subject, age_group)" +
          where,
      unitYearSexList, add);
  rawFigures().each("SELECT subjects.name, 'Total', deaths, n" + chosen + where, unitYearSexList, add);
  return expected;
}

TEST(AgePages, ShowWhatWasCounted) {
  std::size_t equal = 0;
  std::vector<std::string> units = provinces();
  units.emplace_back("Veldoria");
  eachYearAndSex([&](const std::string& year, const std::string& sex) {
    for (const ListName& list : kLists) {
      for (const std::string& unit : units) {
        const std::string page = agesPage(year, sex, list, unit);
        equal += countEqual(page, deathsByAge({unit, year, sex, list.list}), textsOf(readPage(page)));
      }
    }
  });
  EXPECT_EQ(equal, kCauseRows * (kProvinces + 1) * (kAges + 1) * 2);
}

TEST(DistributionPages, ShowWhatWasCounted) {
  std::size_t equal = 0;
  eachYearAndSex([&](const std::string& year, const std::string& sex) {
    ShownFigures expected;
    rawFigures().each(
        "SELECT list, subjects.name, units.name, facts.deaths, whole.deaths FROM facts JOIN units USING (unit)"
        " JOIN subjects USING (subject) JOIN facts AS whole USING (unit, year, choice)"
        " WHERE whole.subject = 0 AND year = CAST(? AS INTEGER) AND choice = ? AND kind <> 'ZonasBasicas'",
        {year, sex}, [&](const ResultRow& row) {
          const double all = row.number(4);
          ASSERT_GT(all, 0);
          expected[{"0", row.text(0), causeName(row, 1), row.text(2) + "/Def."}] = count(row.number(3));
          expected[{"0", row.text(0), causeName(row, 1), row.text(2) + "/%"}] = decimal(100 * row.number(3) / all);
        });
    const std::string page = yearPage(2, year, sex);
    equal += countEqual(page, expected, textsOf(readPage(page)));
  });
  // One row of all causes for both lists.
  EXPECT_EQ(equal, (kCauseRows - kYears.size() * kSexes.size()) * (kProvinces + 1) * 2);
}

// The eight columns of the pages of indicators, of the units of all kinds or of provinces and the region alone. The
// limits are those of Dobson and others, with Byar's approximation for the d deaths.
constexpr const char* kIndicatorsQuery = R"(
WITH
  chosen AS (
    SELECT *, deaths AS d, deaths + 1.0 AS e, 1.959963984540054 AS z FROM facts
      JOIN people USING (unit, year, choice) JOIN units USING (unit)
    WHERE subject = 0 AND year = CAST(? AS INTEGER) AND choice = ? AND kind IN (?, 'Provincias', 'Veldoria')),
  limited AS (
    SELECT *, CASE WHEN d > 0 THEN sqrt(variance / d) ELSE even END AS scale,
      CASE WHEN d > 0 THEN d * pow(1 - 1 / (9.0 * d) - z / (3 * sqrt(d)), 3) ELSE 0 END AS low,
      e * pow(1 - 1 / (9 * e) + z / (3 * sqrt(e)), 3) AS high
    FROM chosen)
SELECT CASE WHEN province <> '' THEN province || '/' ELSE '' END || name, n, d, rate,
  max(0, rate + scale * (low - d)), rate + scale * (high - d), lost, young, early
FROM limited)";

ShownFigures indicators(const std::string& year, const std::string& sex, bool withZones) {
  ShownFigures expected;
  rawFigures().each(kIndicatorsQuery, {year, sex, withZones ? "ZonasBasicas" : ""}, [&](const ResultRow& row) {
    const double deaths = row.number(2);
    const std::string limits = "Límites de confianza (95\u00A0%)/";
    const auto enter = [&](const std::string& column, const Shown& shown) {
      expected[{"0", "", row.text(0), column}] = shown;
    };
    enter("Población", count(row.number(1)));
    enter("Fallecidos", count(deaths));
    enter("Tasa bruta", rate(perPersons(deaths, row.number(1)), deaths));
    enter("Tasa estandarizada", rate(row.number(3), deaths));
    enter(limits + "inferior", decimal(row.number(4)));
    enter(limits + "superior", decimal(row.number(5)));
    enter("AVPP", decimal(row.number(6)));
    enter("Tasa de AVPP", rate(perPersons(row.number(6), row.number(7)), row.number(8)));
  });
  return expected;
}

TEST(ProvincePages, ShowWhatWasCounted) {
  std::size_t equal = 0;
  eachYearAndSex([&](const std::string& year, const std::string& sex) {
    const std::string page = yearPage(3, year, sex);
    equal += countEqual(page, indicators(year, sex, false), textsOf(readPage(page)));
  });
  EXPECT_EQ(equal, kYears.size() * kSexes.size() * (kProvinces + 1) * 8);
}

TEST(ZonePages, ShowWhatWasCounted) {
  std::size_t equal = 0;
  eachYearAndSex([&](const std::string& year, const std::string& sex) {
    const std::string page = yearPage(4, year, sex);
    equal += countEqual(page, indicators(year, sex, true), textsOf(readPage(page)));
  });
  EXPECT_EQ(equal, kYears.size() * kSexes.size() * kUnits * 8);
}

}  // namespace
}  // namespace studytest
