#include "hosts/windows/com/ole_variant.h"

#include <gtest/gtest.h>

#include "text/failure.h"

namespace windows {
namespace {

template <class Set>
platform::Variant valueOf(VARTYPE type, Set set) {
  OleVariant variant;
  variant.get().vt = type;
  set(variant.get());
  return variant.value();
}

TEST(OleVariant, SaysWhatAnEngineAnswers) {
  EXPECT_EQ(valueOf(VT_EMPTY, [](VARIANT&) {}), platform::Variant());
  EXPECT_EQ(valueOf(VT_NULL, [](VARIANT&) {}), platform::Variant());
  EXPECT_EQ(valueOf(VT_BOOL, [](VARIANT& v) { v.boolVal = VARIANT_TRUE; }), platform::Variant("T"));
  EXPECT_EQ(valueOf(VT_BOOL, [](VARIANT& v) { v.boolVal = VARIANT_FALSE; }), platform::Variant("F"));
  EXPECT_EQ(valueOf(VT_I2, [](VARIANT& v) { v.iVal = -7; }), platform::Variant(-7.0));
  EXPECT_EQ(valueOf(VT_I4, [](VARIANT& v) { v.lVal = 65596; }), platform::Variant(65596.0));
  EXPECT_EQ(valueOf(VT_R8, [](VARIANT& v) { v.dblVal = 0.25; }), platform::Variant(0.25));
  EXPECT_EQ(OleVariant("Ñorza").value(), platform::Variant("Ñorza"));
}

TEST(OleVariant, TakesASinglePrecisionNumberForTheDecimalsThatItShows) {
  EXPECT_EQ(valueOf(VT_R4, [](VARIANT& v) { v.fltVal = 0.1F; }), platform::Variant(0.1));
}

TEST(OleVariant, LooksBehindReferences) {
  LONG number = 12;
  EXPECT_EQ(valueOf(VT_I4 | VT_BYREF, [&number](VARIANT& v) { v.plVal = &number; }), platform::Variant(12.0));
}

TEST(OleVariant, FailsWithWhatIsNeitherNumberNorText) {
  OleVariant variant;
  variant.get().vt = VT_UNKNOWN;
  variant.get().punkVal = nullptr;
  try {
    static_cast<void>(variant.value());
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.number(), failures::kTypeMismatch);
  }
}

}  // namespace
}  // namespace windows
