#include "motor/language/value.h"

#include <gtest/gtest.h>

#include "motor/language/error.h"

namespace motor {
namespace {

TEST(ValueTest, givesItsText) {
  EXPECT_EQ(Value().toText(), "");
  EXPECT_EQ(Value(true).toText(), "T");
  EXPECT_EQ(Value(false).toText(), "F");
  EXPECT_EQ(Value(12).toText(), "12");
  EXPECT_EQ(Value(0.35).toText(), "0.35");
  EXPECT_EQ(Value("Año").toText(), "Año");
  EXPECT_EQ(Value(ObjectPtr()).toText(), "");
}

TEST(LanguageErrorTest, saysWhereAtWhichWordAndWhy) {
  const LanguageError error({2, 7}, "fooo", "se esperaba From");
  EXPECT_STREQ(error.what(), "línea 2, columna 7: «fooo»: se esperaba From");
  EXPECT_EQ(error.position(), (Position{2, 7}));
  EXPECT_EQ(error.word(), "fooo");
  EXPECT_EQ(error.reason(), "se esperaba From");
  EXPECT_STREQ(LanguageError({1, 4}, "", "se esperaba From").what(),
               "línea 1, columna 4: fin del texto: se esperaba From");
}

}  // namespace
}  // namespace motor
