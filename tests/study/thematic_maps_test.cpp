#include <gtest/gtest.h>

#include <variant>

#include "catalogue.h"
#include "motor/drawing/legend_sections.h"
#include "motor/session/headless_windows.h"
#include "motor/session/session.h"
#include "motor/tables/table_store.h"
#include "sample_study.h"

// Every thematic map, opened in the engine: what its layers shade, and what its legend says of it.
namespace studytest {
namespace {

// A map as the engine shows it.
class OpenMap {
 public:
  OpenMap(const Frame& frame, const Subject& subject) {
    session_.run("run application \"" + pathOf(frame, subject).string() + ".wor\"");
  }

  [[nodiscard]] std::string text(const std::string& expression) { return session_.eval(expression).text(); }
  void run(const std::string& statement) { session_.run(statement); }
  [[nodiscard]] const motor::Map& map() const { return session_.mapWindows().at(0)->map(); }

 private:
  motor::HeadlessWindows windows_;
  motor::Session session_{windows_, {.roots = {scenarios::sampleStudy()}}};
};

// The rows of the first table, all of which must tell of the map's indicator and sex.
std::size_t rowsOfFirstTable(OpenMap& open, const Subject& subject) {
  std::size_t rows = 0;
  const std::string table = open.text("tableinfo(1,1)");
  for (open.run("fetch first from " + table); open.text("eot(" + table + ")") == "F";
       open.run("fetch next from " + table)) {
    EXPECT_EQ(open.text(table + ".indicador"), subject.indicator);
    EXPECT_EQ(open.text(table + ".sexo"), subject.sex);
    ++rows;
  }
  return rows;
}

bool isCount(const Subject& subject) { return subject.indicator == "Fallecidos" || subject.indicator == "Población"; }

std::size_t countedObjects(const motor::LegendSection& section) {
  std::size_t objects = 0;
  for (const motor::LegendLine& line : section.lines) objects += line.count.value_or(0);
  return objects;
}

// Rates: at most five classes, in which every unit with a figure is, and those without. Counts: a few sizes.
void expectLegend(const motor::LegendSection& legend, const Frame& frame, const Subject& subject) {
  constexpr std::size_t kMostLines = 6;
  EXPECT_FALSE(legend.title.isEmpty());
  EXPECT_TRUE(legend.subtitle.contains(QString::fromStdString(subject.year))) << legend.subtitle.toStdString();
  EXPECT_GE(legend.lines.size(), 2U);
  EXPECT_LE(legend.lines.size(), kMostLines);
  for (const motor::LegendLine& line : legend.lines) EXPECT_FALSE(line.text.isEmpty());
  if (isCount(subject)) return;
  EXPECT_EQ(legend.lines.back().text, QStringLiteral("sin datos"));
  EXPECT_EQ(countedObjects(legend), exists(subject) ? frame.units : 0U);
}

std::size_t themesOf(const motor::Map& map, motor::Themes& themes) {
  std::size_t count = 0;
  for (const motor::Layer& layer : map.layers) {
    if (layer.theme == nullptr || layer.table == nullptr) continue;
    if (!std::holds_alternative<std::monostate>(themes.of(layer))) ++count;
  }
  return count;
}

TEST(ThematicMaps, OpenWithTheirThemeAndLegend) {
  std::size_t maps = 0;
  eachMap([&](const Frame& frame, const Subject& subject) {
    SCOPED_TRACE(pathOf(frame, subject));
    // Tables of earlier maps are not needed again.
    motor::TableStore::shared().clear();
    OpenMap open(frame, subject);
    EXPECT_EQ(rowsOfFirstTable(open, subject), exists(subject) ? frame.units : 0U);
    motor::Themes themes;
    const std::vector<motor::LegendSection> legend = motor::legendSections(open.map(), themes);
    EXPECT_EQ(themesOf(open.map(), themes), 1U);
    ASSERT_EQ(legend.size(), 1U);
    expectLegend(legend.front(), frame, subject);
    ++maps;
  });
  EXPECT_EQ(maps, kMaps);
}

}  // namespace
}  // namespace studytest
