#include "wire/fields.h"

#include <gtest/gtest.h>

namespace wire {
namespace {

TEST(FieldsTest, ComeBackAsTheyWere) {
  for (const Fields& fields : {Fields{}, Fields{""}, Fields{"do", "Set map zoom entire"}, Fields{"a:1", "", "2:ñ"},
                               Fields{std::string("\0\n", 2), "x"}}) {
    EXPECT_EQ(unpacked(packed(fields)), fields);
  }
}

TEST(FieldsTest, TextsCutOffOrSpoiltAreNone) {
  const std::string whole = packed({"eval", "WindowID(1)"});
  for (std::size_t size = 1; size < whole.size(); ++size) {
    const auto part = unpacked(std::string_view(whole).substr(0, size));
    EXPECT_TRUE(!part || part->size() == 1) << size;
  }
  EXPECT_EQ(unpacked("x"), std::nullopt);
  EXPECT_EQ(unpacked("-1:a"), std::nullopt);
  EXPECT_EQ(unpacked("99999999999999999999999:a"), std::nullopt);
}

}  // namespace
}  // namespace wire
