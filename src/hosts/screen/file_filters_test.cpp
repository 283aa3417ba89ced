#include "hosts/screen/file_filters.h"

#include <gtest/gtest.h>

namespace screen {
namespace {

std::vector<std::string> described(const std::string& filter) {
  std::vector<std::string> rows;
  for (const FileFilter& row : fileFilters(filter)) rows.push_back(row.description + "=" + row.patterns);
  return rows;
}

using Rows = std::vector<std::string>;

TEST(FileFilters, AreDescriptionsAndPatterns) {
  EXPECT_EQ(described("Páginas|*.htm;*.html|Todos (*)|*"), (Rows{"Páginas=*.htm;*.html", "Todos=*"}));
}

TEST(FileFilters, MayHaveChangedPlaces) {
  EXPECT_EQ(described("*.html|HTML"), (Rows{"HTML=*.html"}));
  EXPECT_EQ(described("*.a|*.b"), (Rows{"*.a=*.b"}));
}

TEST(FileFilters, WithoutAPatternAreNone) {
  EXPECT_EQ(described(""), Rows{});
  EXPECT_EQ(described("Texto"), Rows{});
  EXPECT_EQ(described("Texto|*.txt|Resto"), (Rows{"Texto=*.txt"}));
}

}  // namespace
}  // namespace screen
