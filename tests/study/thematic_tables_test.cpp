#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "catalogue.h"
#include "map_table.h"
#include "text/file_text.h"

// The tables of the thematic maps, against those of the years.
namespace studytest {
namespace {

namespace fs = std::filesystem;

// The year tables' figures by subject. Of the causes that both lists have, those of the reduced list are shown.
const std::map<Subject, std::vector<std::pair<FigureKey, double>>>& figuresBySubject() {
  static const auto figures = [] {
    std::map<Subject, std::vector<std::pair<FigureKey, double>>> all;
    for (const auto& [key, value] : mapFigures()) {
      if (key.type == "Grandes grupos") continue;
      all[{key.table, key.year, key.sex, key.indicator}].emplace_back(key, value);
    }
    return all;
  }();
  return figures;
}

// Rows by Nombre, Indicador, Sexo and Tipo.
using Rows = std::map<std::vector<std::string>, double>;

Rows expectedRows(const Frame& frame, const Subject& subject) {
  Rows rows;
  const auto figures = figuresBySubject().find(subject);
  if (figures == figuresBySubject().end()) return rows;
  for (const auto& [key, value] : figures->second) {
    if (!frame.province.empty() && key.province != frame.province) continue;
    rows[{key.name, key.indicator, key.sex, key.type}] = value;
  }
  return rows;
}

Rows rowsOf(const MapTable& table, const fs::path& file) {
  Rows rows;
  for (const std::vector<std::string>& row : table.rows) {
    EXPECT_TRUE(rows.emplace(std::vector(row.begin(), row.end() - 1), std::stod(row.back())).second) << file;
  }
  return rows;
}

TEST(ThematicTables, AgreeWithTheYearTables) {
  std::size_t maps = 0;
  std::size_t equal = 0;
  eachMap([&](const Frame& frame, const Subject& subject) {
    const fs::path file = pathOf(frame, subject).concat(".TAB");
    const MapTable table = readMapTable(file);
    EXPECT_EQ(table.columns, (std::vector<std::string>{"Nombre", "Indicador", "Sexo", "Tipo", "Valor"})) << file;
    EXPECT_EQ(table.objects, table.rows.size()) << file;
    const Rows expected = expectedRows(frame, subject);
    // No unit goes without deaths and persons here; only what does not exist has no figure.
    EXPECT_EQ(expected.size(), exists(subject) ? frame.units : 0U) << file;
    const bool isEqual = rowsOf(table, file) == expected;
    EXPECT_TRUE(isEqual) << file;
    equal += isEqual ? expected.size() : 0;
    ++maps;
  });
  EXPECT_EQ(maps, kMaps);
  const std::size_t unitsOfAllFrames = kProvinces + kZones + kZones;
  EXPECT_EQ(equal, unitsOfAllFrames * kYears.size() * (kIndicators.size() * kSexes.size() - 1));
}

// Texts of workspaces are of western Europe's letters, one byte each.
std::string inUtf8(const std::string& bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto letter = static_cast<unsigned char>(c);
    if (letter < 0x80) {
      text += c;
    } else {
      text += static_cast<char>(0xC0 | (letter >> 6));
      text += static_cast<char>(0x80 | (letter & 0x3F));
    }
  }
  return text;
}

TEST(ThematicTables, AreWhatTheirWorkspacesOpenFirst) {
  std::size_t workspaces = 0;
  eachMap([&](const Frame& frame, const Subject& subject) {
    const auto bytes = text::wholeFile(pathOf(frame, subject).concat(".wor"));
    ASSERT_TRUE(bytes) << pathOf(frame, subject);
    const std::string workspace = inUtf8(*bytes);
    const std::size_t first = workspace.find("Open Table ");
    ASSERT_NE(first, workspace.npos) << pathOf(frame, subject);
    EXPECT_TRUE(workspace.substr(first).starts_with("Open Table \"" + subject.indicator + "\" As "))
        << pathOf(frame, subject);
    ++workspaces;
  });
  EXPECT_EQ(workspaces, kMaps);
}

}  // namespace
}  // namespace studytest
