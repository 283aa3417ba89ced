#include "motor/tables/gdal.h"

#include <gtest/gtest.h>

#include <thread>

#include "motor/language/error.h"

namespace motor {
namespace {

std::string failureOf(const char* file) {
  try {
    static_cast<void>(loadGdal(file));
  } catch (const EngineError& error) {
    return error.what();
  }
  return "";
}

TEST(GdalTest, isTheSameForEveryThread) {
  const Gdal* seen = nullptr;
  std::thread other([&] { seen = &gdal(); });
  const Gdal& mine = gdal();
  other.join();
  EXPECT_EQ(seen, &mine);
  EXPECT_NE(mine.GDALOpenEx, nullptr);
}

TEST(GdalTest, failsByNameWhenItIsNotThere) {
  EXPECT_TRUE(failureOf("libnowhere.so.7").starts_with("No se puede cargar la biblioteca «libnowhere.so.7»: "));
}

TEST(GdalTest, failsByNameWhenItIsAnotherLibrary) {
  const std::string failure = failureOf("libm.so.6");
  EXPECT_TRUE(failure.starts_with("No se puede cargar la biblioteca «libm.so.6»: ")) << failure;
  EXPECT_NE(failure.find("undefined symbol"), std::string::npos) << failure;
}

TEST(GdalTest, copiesTexts) {
  EXPECT_EQ(takeGdalText(nullptr), "");
  EXPECT_EQ(takeGdalText(gdal().CPLRecode("Le\xF3n", CPL_ENC_ISO8859_1, CPL_ENC_UTF8)), "León");
}

}  // namespace
}  // namespace motor
