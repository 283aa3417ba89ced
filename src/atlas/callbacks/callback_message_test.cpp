#include "atlas/callbacks/callback_message.h"

#include <gtest/gtest.h>

#include <vector>

#include "text/failure.h"

namespace atlas {
namespace {

TEST(CallbackMessage, IsKnownByItsFirstThreeCharacters) {
  EXPECT_TRUE(isCallbackMessage("MI:1,2"));
  EXPECT_TRUE(isCallbackMessage("MI:"));
  EXPECT_FALSE(isCallbackMessage("mi:1,2"));
  EXPECT_FALSE(isCallbackMessage("MI1,2"));
  EXPECT_FALSE(isCallbackMessage(""));
}

TEST(CallbackMessage, SplitsAtCommas) {
  struct Case {
    std::string message;
    std::vector<std::string> fields;
  };
  const std::vector<Case> cases{
      {"MI:-5.25,40.12", {"-5.25", "40.12"}},
      {"MI:350000.5,4650000,T,F", {"350000.5", "4650000", "T", ""}},  // a single last character is not read
      {"MI:12,7", {"12", ""}},
      {"MI:12,75", {"12", "75"}},
      {"MI:12,", {"12", ""}},
      {"MI:12", {"12", ""}},
      {"MI:1", {"", ""}},
      {"MI:,,ab", {"", "", "ab"}},
      {"MI:", {"", ""}},
      {"MI:ñú,áé", {"ñú", "áé"}},  // positions count characters
      {"MI:11,22,33,44,55,66,77,88", {"11", "22", "33", "44", "55", "66", "77", "88"}},
      {"MI:1,2,3,4,5,6,7,8,9", {"1", "2", "3", "4", "5", "6", "7", "8"}},  // the ninth field is a single last character
  };
  for (const Case& c : cases) {
    const CallbackFields fields = callbackFields(c.message);
    for (std::size_t i = 0; i < c.fields.size(); ++i)
      EXPECT_EQ(fields[i + 1], c.fields[i]) << c.message << " " << i + 1;
  }
}

TEST(CallbackMessage, ANinthFieldIsOutOfRange) {
  try {
    static_cast<void>(callbackFields("MI:1,2,3,4,5,6,7,8,99"));
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.number(), failures::kSubscript);
  }
}

}  // namespace
}  // namespace atlas
