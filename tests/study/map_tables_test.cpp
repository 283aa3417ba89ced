#include <gtest/gtest.h>

#include "map_table.h"
#include "raw_figures.h"

namespace studytest {
namespace {

// Every figure of every unit, year, sex and indicator, and no other.
TEST(MapTables, HoldTheFiguresOfTheRawInput) {
  ASSERT_EQ(expectedFigures().size(), kFigures);
  EXPECT_EQ(mapFigures().size(), kFigures);
  EXPECT_EQ(countEqual(expectedFigures(), mapFigures()), kFigures);
}

TEST(MapTables, GiveEveryRowItsUnitsObject) {
  for (const std::string year : kYears) {
    for (const char* base : kYearTables) {
      const MapTable table = readMapTable(yearTable(base, year));
      EXPECT_GT(table.rows.size(), 100U) << base << year;
      EXPECT_EQ(table.objects, table.rows.size()) << base << year;
    }
  }
}

}  // namespace
}  // namespace studytest
