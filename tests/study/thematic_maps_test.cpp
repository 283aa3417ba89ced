#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <utility>
#include <variant>

#include "catalogue.h"
#include "motor/drawing/legend_sections.h"
#include "motor/session/headless_windows.h"
#include "motor/session/session.h"
#include "motor/tables/table_store.h"
#include "sample_study.h"
#include "spanish_figure.h"

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

// What a legend calls an indicator, in the 32 characters that there are for a title.
std::string titleOf(const std::string& indicator) {
  static const std::map<std::string, std::string> shortNames{
      {"Accidentes de tráfico de vehículos de motor", "Accidentes de tráfico"},
      {"Enfermedades crónicas de las vías respiratorias inferiores excepto asma", "Enf. crónicas respir. inferiores"},
      {"Enfermedades del sistema circulatorio", "Enf. del sistema circulatorio"},
      {"Enfermedades del sistema digestivo", "Enf. del sistema digestivo"},
      {"Enfermedades del sistema respiratorio", "Enf. del sistema respiratorio"},
      {"Trastornos mentales orgánicos senil y presenil", "Trastornos mentales orgánicos"},
      {"Tumor maligno de la tráquea, de los bronquios y del pulmón", "Tumor de tráquea, bronq., pulmón"}};
  const std::string prefix = "Tasa estandarizada (x100.000) de ";
  if (!indicator.starts_with(prefix)) return indicator;
  const std::string cause = indicator.substr(prefix.size());
  const auto shorter = shortNames.find(cause);
  return shorter == shortNames.end() ? cause : shorter->second;
}

void expectTitles(const motor::LegendSection& legend, const Subject& subject) {
  EXPECT_EQ(legend.title.toStdString(), titleOf(subject.indicator));
  const bool isOfCause = subject.indicator.find(" de ") != std::string::npos;
  EXPECT_EQ(legend.subtitle.toStdString(), (isOfCause ? "Tasa x100.000, " : "") + subject.sex + ", " + subject.year);
}

double limitIn(const std::string& words) {
  const auto figure = spanishFigure(words);
  EXPECT_TRUE(figure) << words;
  return figure ? figure->value : -1;
}

// From where to where a line of a legend says that its class reaches; the outer ends are open.
std::pair<double, double> rangeIn(const std::string& line) {
  const std::string least = "menos de ";
  const std::string most = " y más";
  constexpr double kOpen = std::numeric_limits<double>::infinity();
  if (line.starts_with(least)) return {-kOpen, limitIn(line.substr(least.size()))};
  if (line.ends_with(most)) return {limitIn(line.substr(0, line.size() - most.size())), kOpen};
  const std::size_t between = line.find(" a ");
  EXPECT_NE(between, std::string::npos) << line;
  if (between == std::string::npos) return {};
  return {limitIn(line.substr(0, between)), limitIn(line.substr(between + 3))};
}

// Each class of the theme has its line, the highest first, with its limits, its colour and its units; the last line is
// of units without a figure.
void expectClasses(const motor::LegendSection& legend, const motor::ClassTheme& theme) {
  const std::vector<motor::ThemeClass>& classes = theme.classes();
  EXPECT_LE(classes.size(), 5U);
  ASSERT_EQ(legend.lines.size(), classes.size() + 1);
  for (std::size_t i = 0; i < classes.size(); ++i) {
    const motor::LegendLine& line = legend.lines[classes.size() - 1 - i];
    const auto [from, to] = rangeIn(line.text.toStdString());
    SCOPED_TRACE(line.text.toStdString());
    EXPECT_EQ(std::isinf(from), i == 0 && classes.size() > 1);
    EXPECT_EQ(std::isinf(to), i + 1 == classes.size() && classes.size() > 1);
    EXPECT_TRUE(std::isinf(from) || *classes[i].minimum.number() == from);
    EXPECT_TRUE(std::isinf(to) || *classes[i].maximum.number() == to);
    EXPECT_TRUE(i == 0 || *classes[i].minimum.number() == *classes[i - 1].maximum.number());
    EXPECT_EQ(line.count, classes[i].objects);
    ASSERT_TRUE(classes[i].styles.brush);
    EXPECT_EQ(line.swatch.style.brush.fore, classes[i].styles.brush->fore);
  }
}

// Rates: at most five classes, in which every unit with a figure is, and those without. Counts: a few sizes.
void expectLegend(const motor::LegendSection& legend, const Frame& frame, const Subject& subject) {
  constexpr std::size_t kMostLines = 6;
  expectTitles(legend, subject);
  EXPECT_GE(legend.lines.size(), 2U);
  EXPECT_LE(legend.lines.size(), kMostLines);
  for (const motor::LegendLine& line : legend.lines) EXPECT_FALSE(line.text.isEmpty());
  if (isCount(subject)) return;
  EXPECT_EQ(legend.lines.back().text, QStringLiteral("sin datos"));
  EXPECT_EQ(countedObjects(legend), exists(subject) ? frame.units : 0U);
}

std::vector<const motor::Theme*> themesOf(const motor::Map& map, motor::Themes& themes) {
  std::vector<const motor::Theme*> all;
  for (const motor::Layer& layer : map.layers) {
    if (layer.theme == nullptr || layer.table == nullptr) continue;
    const motor::Theme& theme = themes.of(layer);
    if (!std::holds_alternative<std::monostate>(theme)) all.push_back(&theme);
  }
  return all;
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
    const std::vector<const motor::Theme*> shown = themesOf(open.map(), themes);
    ASSERT_EQ(shown.size(), 1U);
    ASSERT_EQ(legend.size(), 1U);
    expectLegend(legend.front(), frame, subject);
    const auto* classes = std::get_if<motor::ClassTheme>(shown.front());
    EXPECT_EQ(classes == nullptr, isCount(subject));
    if (classes != nullptr) expectClasses(legend.front(), *classes);
    ++maps;
  });
  EXPECT_EQ(maps, kMaps);
}

}  // namespace
}  // namespace studytest
