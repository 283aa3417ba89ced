#include "motor/session/text_cache.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace motor {
namespace {

class TextCacheTest : public testing::Test {
 protected:
  std::size_t length(const std::string& text) {
    return *cache_.get(text, [this](const std::string& s) {
      ++made_;
      return s.size();
    });
  }

  TextCache<std::size_t> cache_;
  int made_ = 0;
};

TEST_F(TextCacheTest, makesAValueOnce) {
  EXPECT_EQ(length("abc"), 3U);
  EXPECT_EQ(length("abc"), 3U);
  EXPECT_EQ(made_, 1);
  cache_.clear();
  EXPECT_EQ(length("abc"), 3U);
  EXPECT_EQ(made_, 2);
}

TEST_F(TextCacheTest, doesNotKeepLongTexts) {
  const std::string text(5000, 'x');
  EXPECT_EQ(length(text), 5000U);
  EXPECT_EQ(length(text), 5000U);
  EXPECT_EQ(made_, 2);
}

TEST_F(TextCacheTest, startsAnewWhenItIsFull) {
  for (int i = 0; i < 5000; ++i) static_cast<void>(length(std::to_string(i)));
  EXPECT_EQ(made_, 5000);
  static_cast<void>(length("0"));
  EXPECT_EQ(made_, 5001);
}

TEST_F(TextCacheTest, valuesInUseOutliveTheCache) {
  const auto value = cache_.get("abc", [](const std::string& s) { return s.size(); });
  cache_.clear();
  EXPECT_EQ(*value, 3U);
}

TEST_F(TextCacheTest, keepsNothingOfAFailure) {
  EXPECT_THROW(
      static_cast<void>(cache_.get("abc", [](const std::string&) -> std::size_t { throw std::runtime_error("no"); })),
      std::runtime_error);
  EXPECT_EQ(length("abc"), 3U);
}

}  // namespace
}  // namespace motor
