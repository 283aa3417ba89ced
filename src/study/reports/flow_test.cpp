#include "study/reports/flow.h"

#include <gtest/gtest.h>

#include "study/reports/test_pages.h"

namespace study::reports {
namespace {

pages::Sheet longSheet(std::size_t rows) {
  pages::Sheet sheet{"Zonas", "Zona", {{"", "Población"}}, {}};
  for (std::size_t i = 0; i < rows; ++i) {
    sheet.rows.push_back({pages::RowKind::figures, "Zona " + std::to_string(i), {{std::to_string(1000 + i)}}});
  }
  return sheet;
}

TEST(Flow, RepeatsATablesHeaderOnEachPage) {
  Flow flow("prueba");
  flow.section("Tablas");
  flow.table(longSheet(150), {"Una nota."});
  const std::vector<Page> pages = std::move(flow).finished("Informe");
  ASSERT_GT(pages.size(), 2U);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    EXPECT_TRUE(hasText(pages[i], "Población")) << i;
    EXPECT_EQ(hasText(pages[i], "Tabla 1. Zonas (continuación)"), i > 0);
    EXPECT_TRUE(hasText(pages[i], std::to_string(i + 1) + " / " + std::to_string(pages.size())));
    EXPECT_TRUE(hasText(pages[i], "Informe"));
  }
  for (int row = 0; row < 150; ++row) EXPECT_TRUE(hasText(pages, "Zona " + std::to_string(row)));
  EXPECT_TRUE(hasText(pages.back(), "Una nota. Fuente: prueba"));
}

// Wherever a table ends on its page, notes do not stand alone on the next.
TEST(Flow, KeepsNotesWithRows) {
  for (std::size_t rows = 1; rows < 60; ++rows) {
    Flow flow("prueba");
    flow.section("Tablas");
    flow.table(longSheet(rows), {"Una nota.", "Otra."});
    const std::vector<Page> pages = std::move(flow).finished("Informe");
    EXPECT_TRUE(hasText(pages.back(), "Zona " + std::to_string(rows - 1))) << rows;
    EXPECT_TRUE(hasText(pages.back(), "Una nota.")) << rows;
    for (const Page& page : pages) expectWithin(page, {kLeft, kTop - 40, kContentWidth, kBottom - kTop + 80});
  }
}

TEST(Flow, NumbersFiguresByKind) {
  Flow flow("prueba");
  flow.section("A");
  (void)flow.figure("Gráfico", "uno", 50);
  flow.table(longSheet(1), {});
  (void)flow.figure("Gráfico", "dos", 50);
  const std::vector<Page> pages = std::move(flow).finished("");
  for (const char* text : {"Gráfico 1. uno", "Tabla 1. Zonas", "Gráfico 2. dos"}) EXPECT_TRUE(hasText(pages, text));
}

TEST(Flow, ListsContents) {
  Flow flow("prueba");
  flow.newPage();
  flow.section("Primera");
  flow.newPage();
  flow.section("Segunda");
  flow.paintContents(1, kTop);
  const std::vector<Page> pages = std::move(flow).finished("Informe");
  EXPECT_TRUE(hasText(pages[0], "Primera 2 Segunda 4"));
  EXPECT_TRUE(hasText(pages[2], "Informe Primera")) << "a section's later pages name it too";
}

TEST(Flow, KeepsParagraphsApart) {
  Flow flow("prueba");
  flow.newPage();
  const double top = flow.y();
  flow.paragraphs("Una línea\nque sigue.\n\n \nOtra.");
  const std::vector<const TextMark*> texts = textsOf(flow.page());
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0]->text, "Una línea que sigue.");
  EXPECT_EQ(texts[1]->text, "Otra.");
  EXPECT_GT(flow.y(), top);
}

}  // namespace
}  // namespace study::reports
