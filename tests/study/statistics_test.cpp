#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

#include "map_table.h"
#include "raw_figures.h"
#include "sample_study.h"

// The figures of the statistics map, against the raw input.
namespace studytest {
namespace {

using Lines = std::map<std::pair<std::string, std::string>, double>;  // by unit and label

Lines linesOfMap() {
  const MapTable table =
      readMapTable(std::filesystem::path(scenarios::sampleStudy()) / "Tablas/Estadisticas/Estadisticas.TAB");
  Lines lines;
  for (const std::vector<std::string>& row : table.rows) {
    if (!lines.emplace(std::pair(row[0], row[2]), std::stod(row[3])).second) throw std::runtime_error(row[2]);
  }
  return lines;
}

// Units: each province, and the region of all zones. A period's rates are those of its persons and deaths together.
constexpr const char* kStatistics = R"(
WITH places AS (SELECT zone, province AS unit FROM zones UNION ALL SELECT zone, 'Veldoria' FROM zones),
  n AS (SELECT unit, year, age_group, SUM(persons) AS n FROM population JOIN places USING (zone) GROUP BY 1, 2, 3),
  d AS (SELECT unit, year, age_group, SUM(count) AS d FROM deaths JOIN places USING (zone) GROUP BY 1, 2, 3),
  both AS (SELECT unit, year, age_group, n, IFNULL(d, 0) AS d FROM n LEFT JOIN d USING (unit, year, age_group)),
  sums AS (SELECT unit, age_group, SUM(n) AS n, SUM(d) AS d FROM both GROUP BY 1, 2),
  aged AS (SELECT * FROM sums JOIN ages USING (age_group)),
  latest AS (SELECT unit, n, first, last FROM both JOIN ages USING (age_group)
             WHERE year = (SELECT MAX(year) FROM both)),
  totals AS (SELECT unit, year, SUM(n) AS n, SUM(d) AS d FROM both GROUP BY 1, 2)
SELECT unit, 'Población ' || year, n FROM totals
UNION ALL SELECT unit, 'Fallecidos ' || year, d FROM totals
UNION ALL SELECT unit, 'Variación 1999-2002 (%)',
  100.0 * SUM(CASE year WHEN 2002 THEN n END) / SUM(CASE year WHEN 1999 THEN n END) - 100 FROM totals GROUP BY unit
UNION ALL SELECT unit, 'Fallecidos 1999-2002', SUM(d) FROM totals GROUP BY unit
UNION ALL SELECT unit, 'Tasa bruta 1999-2002 (x100.000)', 1e5 * SUM(d) / SUM(n) FROM totals GROUP BY unit
UNION ALL SELECT unit, 'Tasa estandarizada 1999-2002 (x100.000)',
  1e5 * SUM(1.0 * weight * d / n) / (SELECT SUM(weight) FROM ages) FROM aged GROUP BY unit
UNION ALL SELECT unit, 'AVPP 1999-2002', SUM(CASE WHEN last <= 70 THEN d * (70 - (first + last) / 2.0) ELSE 0 END)
  FROM aged GROUP BY unit
UNION ALL SELECT unit, 'Tasa de AVPP 1999-2002 (x100.000)',
  1e5 * SUM(CASE WHEN last <= 70 THEN d * (70 - (first + last) / 2.0) ELSE 0 END) /
    SUM(CASE WHEN last <= 70 THEN n ELSE 0 END) FROM aged GROUP BY unit
UNION ALL SELECT unit, 'Menores de 15 años en 2002 (%)',
  100.0 * SUM(CASE WHEN first < 15 THEN n ELSE 0 END) / SUM(n) FROM latest GROUP BY unit
UNION ALL SELECT unit, 'De 65 y más años en 2002 (%)',
  100.0 * SUM(CASE WHEN first >= 65 THEN n ELSE 0 END) / SUM(n) FROM latest GROUP BY unit
UNION ALL SELECT unit, 'Índice de envejecimiento en 2002',
  100.0 * SUM(CASE WHEN first >= 65 THEN n ELSE 0 END) / SUM(CASE WHEN first < 15 THEN n ELSE 0 END)
  FROM latest GROUP BY unit
UNION ALL SELECT unit, 'Zonas básicas de salud', COUNT(*) FROM places GROUP BY unit
UNION ALL SELECT 'Veldoria', 'Provincias', COUNT(DISTINCT province) FROM zones
)";

// All but the areas, which the raw counts do not tell, and the density.
TEST(Statistics, AreThoseOfTheRawInput) {
  Lines lines = linesOfMap();
  std::size_t equal = 0;
  rawFigures().each(kStatistics, {}, [&](const ResultRow& row) {
    const auto line = lines.find({row.text(0), row.text(1)});
    ASSERT_NE(line, lines.end()) << row.text(0) << ": " << row.text(1);
    EXPECT_NEAR(line->second, row.number(2), 1e-9 * std::abs(row.number(2)) + 1e-9)
        << row.text(0) << ": " << row.text(1);
    lines.erase(line);
    ++equal;
  });
  EXPECT_EQ(equal, (kProvinces + 1) * 18 + 1);
  for (const auto& [line, value] : lines) {
    EXPECT_TRUE(line.second == "Superficie (km²)" || line.second == "Densidad en 2002 (habitantes/km²)")
        << line.second << " is in no query";
    EXPECT_GT(value, 0);
  }
}

TEST(Statistics, ProvincesCoverTheRegion) {
  const Lines lines = linesOfMap();
  double provinces = 0;
  for (const auto& [line, value] : lines) {
    if (line.second == "Superficie (km²)" && line.first != "Veldoria") provinces += value;
  }
  const double region = lines.at({"Veldoria", "Superficie (km²)"});
  EXPECT_NEAR(provinces, region, 1e-6 * region);
}

}  // namespace
}  // namespace studytest
