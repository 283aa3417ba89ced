#include "hosts/windows/win32/wide_text.h"

#include <gtest/gtest.h>

#include "hosts/windows/win32/windows_h.h"

namespace windows {
namespace {

TEST(WideText, GoesThereAndBack) {
  for (const char* text : {"", "Fallecidos", "Añó ü Ñ €", "mapa 🗺"}) EXPECT_EQ(utf8(wide(text)), text);
  EXPECT_EQ(wide("Año"), L"Año");
  EXPECT_EQ(wide("🗺").size(), 2U);
}

TEST(WideText, KnowsWhatTheCodePageCannotWrite) {
  ASSERT_EQ(GetACP(), 1252U);
  EXPECT_EQ(ansi("Seleccionar mapa temático"), "Seleccionar mapa tem\xE1tico");
  EXPECT_EQ(ansi("Ω"), std::nullopt);
  EXPECT_EQ(fromAnsi("C:\\Espa\xF1"
                     "a"),
            "C:\\España");
}

}  // namespace
}  // namespace windows
