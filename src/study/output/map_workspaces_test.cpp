#include "study/output/map_workspaces.h"

#include <gtest/gtest.h>

#include "study/output/test_folder.h"
#include "study/output/workspace_text.h"

namespace study {
namespace {

const MapProjection kProjection{R"(Earth Projection 8, 104, "m", -3, 0, 0.9996, 500000, 0)",
                                {0, 4'000'000, 1'000'000, 5'000'000}};

TEST(Workspaces, YearMapHasItsThreeLayers) {
  const std::string text = yearWorkspace(2001, kProjection);
  for (const char* part : {
           "!Workspace\n!Version 600\n!Charset WindowsLatin1\n",
           "Open Table \"Provincias2001\" As Provincias2001 Interactive\n",
           "Map From Provincias2001,ZonasBasicas2001,Veldoria2001\n",
           "Set Window FrontWindow() Title \"Provincias y zonas básicas de salud, 2001\" ScrollBars Off",
           "CoordSys Earth Projection 8, 104, \"m\", -3, 0, 0.9996, 500000, 0\n",
           "\n  Zoom Entire\n  Preserve Zoom Display Zoom\n  Distance Units \"km\"",
           "Layer 1\n    Display Graphic\n    Global Pen (",
           "Layer 2\n    Display Global\n    Global Pen (",
           "Layer 3\n    Display Off\n    Global Pen (",
       }) {
    EXPECT_NE(text.find(part), std::string::npos) << part;
  }
}

TEST(Workspaces, StatisticsMapHasOne) {
  const std::string text = statisticsWorkspace(kProjection);
  EXPECT_NE(text.find("Map From Estadisticas\n"), std::string::npos);
  EXPECT_NE(text.find("Layer 1\n    Display Graphic\n"), std::string::npos);
  EXPECT_NE(text.find("\n  Zoom Entire\n"), std::string::npos);
  EXPECT_EQ(text.find("Layer 2"), std::string::npos);
}

TEST(Workspaces, FilesAreWindowsText) {
  const TestFolder test;
  writeWorkspace(test.path() / "Año.wor", "Año\nkm²\n");
  EXPECT_EQ(bytesOf(test.path() / "Año.wor"), "A\xF1o\r\nkm\xB2\r\n");
}

}  // namespace
}  // namespace study
