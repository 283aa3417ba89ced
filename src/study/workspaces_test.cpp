#include "study/workspaces.h"

#include <gtest/gtest.h>

#include "study/test_folder.h"

namespace study {
namespace {

constexpr Extent kRegion{300'000, 4'400'000, 700'000, 4'700'000};

TEST(Workspaces, YearMapHasItsThreeLayers) {
  const std::string text = yearWorkspace(2001, kRegion);
  for (const char* part : {
           "!Workspace\n!Version 600\n!Charset WindowsLatin1\n",
           "Open Table \"Provincias2001\" As Provincias2001 Interactive\n",
           "Map From Provincias2001,ZonasBasicas2001,Veldoria2001\n",
           "CoordSys Earth Projection 8, 28, \"m\", -3, 0, 0.9996, 500000, 0\n",
           "Center (500000,4550000)\n  Zoom 450 Units \"km\"\n  Preserve Zoom Display Zoom\n  Distance Units \"km\"",
           "Layer 1\n    Display Graphic\n    Global Pen (",
           "Layer 2\n    Display Global\n    Global Pen (",
           "Layer 3\n    Display Off\n    Global Pen (",
       }) {
    EXPECT_NE(text.find(part), std::string::npos) << part;
  }
}

TEST(Workspaces, StatisticsMapHasOne) {
  const std::string text = statisticsWorkspace(kRegion);
  EXPECT_NE(text.find("Map From Estadisticas\n"), std::string::npos);
  EXPECT_NE(text.find("Layer 1\n    Display Graphic\n"), std::string::npos);
  EXPECT_EQ(text.find("Layer 2"), std::string::npos);
}

TEST(Workspaces, FilesAreWindowsText) {
  const TestFolder test;
  writeWorkspace(test.path() / "Año.wor", "Año\nkm²\n");
  EXPECT_EQ(bytesOf(test.path() / "Año.wor"), "A\xF1o\r\nkm\xB2\r\n");
}

}  // namespace
}  // namespace study
