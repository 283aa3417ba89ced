#pragma once

#include <array>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "text/number_text.h"
#include "text/utf8.h"

// A study small enough to know by heart, for tests: three provinces side by side, each two degrees wide and three high
// between longitudes -6 and 0 and latitudes 40 and 43, and six zones, the southern third and the northern two thirds of
// each province. Every unit has twelve rows: three sexes by four indicators.
namespace motor::tiny {

struct Unit {
  const char* name;
  const char* province;  // of a zone
  double west, south, east, north;
};

inline constexpr std::array<Unit, 3> kProvinces{{
    {"Ñorga", "", -4, 40, -2, 43},
    {"Ávalos", "", -6, 40, -4, 43},
    {"Brisa", "", -2, 40, 0, 43},
}};

inline constexpr std::array<Unit, 6> kZones{{
    {"Lirio", "Ñorga", -4, 40, -2, 41},
    {"Álamo", "Ñorga", -4, 41, -2, 43},
    {"Encina", "Ávalos", -6, 40, -4, 41},
    {"Fresno", "Ávalos", -6, 41, -4, 43},
    {"Haya", "Brisa", -2, 40, 0, 41},
    {"Pino", "Brisa", -2, 41, 0, 43},
}};

inline constexpr std::array<const char*, 3> kSexes{"Mujeres", "Ambos sexos", "Hombres"};

struct Indicator {
  const char* type;
  const char* name;
  double value;
};

inline constexpr std::array<Indicator, 4> kIndicators{{
    {"Lista reducida", "Tasa estandarizada (x100.000) de Diabetes mellitus", 12.345},
    {"General", "Fallecidos", 1234},
    {"General", "Población", 567890},
    {"Grandes grupos", "Tasa estandarizada (x100.000) de Tumores", 0.1},
}};

// The one-byte text of table and workspace files.
inline std::string latin(std::string_view utf8) {
  std::string bytes;
  for (const char32_t c : text::decode(utf8)) bytes.push_back(static_cast<char>(static_cast<unsigned char>(c)));
  return bytes;
}

inline void writeLatin(const std::filesystem::path& file, std::string_view utf8) {
  std::ofstream(file, std::ios::binary) << latin(utf8);
}

inline std::string inQuotes(std::string_view s) { return '"' + std::string(s) + '"'; }

// One region of a MIF file.
inline std::string rectangle(const Unit& u) {
  const auto point = [](double x, double y) { return text::number(x) + " " + text::number(y) + "\n"; };
  return "Region 1\n  5\n" + point(u.west, u.south) + point(u.east, u.south) + point(u.east, u.north) +
         point(u.west, u.north) + point(u.west, u.south) + "    Pen (1,2,0)\n    Brush (2,16777215,16777215)\n";
}

// Writes NAME.mif and NAME.mid: `columns` as "Name Type" each, rows as comma-separated fields, an object a row.
inline void writeTable(const std::filesystem::path& folder, const std::string& name,
                       const std::vector<std::string>& columns, const std::vector<std::string>& rows,
                       const std::vector<std::string>& objects, const std::string& system = "Earth Projection 1, 104") {
  std::string mif = "Version 300\nCharset \"WindowsLatin1\"\nDelimiter \",\"\nCoordSys " + system + "\nColumns " +
                    std::to_string(columns.size()) + "\n";
  for (const std::string& column : columns) mif += "  " + column + "\n";
  mif += "Data\n\n";
  for (const std::string& object : objects) mif += object;
  std::string mid;
  for (const std::string& row : rows) mid += row + "\n";
  writeLatin(folder / (name + ".mif"), mif);
  writeLatin(folder / (name + ".mid"), mid);
}

// Provincias, ZonasBasicas and Veldoria of one year.
inline void writeYearTables(const std::filesystem::path& folder, const std::string& year) {
  const auto write = [&](const std::string& name, const auto& units, bool zones, double factor) {
    std::vector<std::string> columns{"Año Char(4)", "Nombre Char(40)"};
    if (zones) columns.emplace_back("Provincia Char(40)");
    for (const char* column : {"Sexo Char(12)", "Tipo Char(20)", "Indicador Char(120)", "Valor Float"})
      columns.emplace_back(column);
    std::vector<std::string> rows;
    std::vector<std::string> objects;
    for (const Unit& unit : units) {
      for (const char* sex : kSexes) {
        for (const Indicator& indicator : kIndicators) {
          rows.push_back(inQuotes(year) + "," + inQuotes(unit.name) + "," +
                         (zones ? inQuotes(unit.province) + "," : "") + inQuotes(sex) + "," + inQuotes(indicator.type) +
                         "," + inQuotes(indicator.name) + "," + text::number(indicator.value * factor));
          objects.push_back(rectangle(unit));
        }
      }
    }
    writeTable(folder, name + year, columns, rows, objects);
  };
  write("Provincias", kProvinces, false, 1);
  write("ZonasBasicas", kZones, true, 0.5);
  write("Veldoria", std::array<Unit, 1>{{{"Veldoria", "", -6, 40, 0, 43}}}, false, 3);
}

// Parts of workspaces: the first lines, the view of a map, what stands under a layer's label.
inline const std::string kFirstLines = "!Workspace\n!Version 600\n!Charset WindowsLatin1\n";
inline const std::string kView =
    "Set Map\n"
    "  CoordSys Earth Projection 1, 104\n"
    "  Center (-3,41.5)\n"
    "  Zoom 700 Units \"km\"\n"
    "  Preserve Zoom Display Zoom\n"
    "  Distance Units \"km\" Area Units \"sq km\" XY Units \"degree\"\n";
inline const std::string kLabelParts =
    "      With Nombre\n"
    "      Parallel On Auto Off Overlap Off PartialSegments Off Duplicates On Offset 2\n"
    "      Visibility On\n";

inline std::string openTable(const std::string& name) {
  return "Open Table " + inQuotes(name) + " As " + name + " Interactive\n";
}

// The workspace of a year: layer 1 the provinces, layer 2 the zones, layer 3 the region, which is not drawn.
inline std::string yearWorkspace(const std::string& year) {
  const std::array<std::string, 3> tables{"Provincias" + year, "ZonasBasicas" + year, "Veldoria" + year};
  std::string workspace = kFirstLines;
  for (const std::string& table : tables) workspace += openTable(table);
  return workspace + "Map From " + tables[0] + "," + tables[1] + "," + tables[2] +
         "\n"
         "  Position (0.0520833,0.0520833) Units \"in\"\n"
         "  Width 6.5 Units \"in\" Height 4.1 Units \"in\"\n"
         "Set Window FrontWindow() ScrollBars Off Autoscroll On\n" +
         kView +
         "Set Map\n"
         "  Layer 1\n"
         "    Display Global\n"
         "    Global Pen (1,2,0) Brush (2,12632256,16777215) Symbol (35,0,12) Line (1,2,0) Font (\"Arial\",0,9,0)\n"
         "    Label Line None Position Center Font (\"Arial\",1,8,0) Pen (1,2,0)\n" +
         kLabelParts +
         "  Layer 2\n"
         "    Display Global\n"
         "    Global Pen (1,2,8421504) Brush (1,16777215,16777215)\n"
         "  Layer 3\n"
         "    Display Off\n"
         "    Selectable Off\n";
}

// Writes the year's tables and its workspace "AñoYEAR.wor", and returns the workspace's path.
inline std::filesystem::path writeYear(const std::filesystem::path& folder, const std::string& year) {
  std::filesystem::create_directories(folder);
  writeYearTables(folder, year);
  const std::u8string name = u8"Año" + std::u8string(year.begin(), year.end()) + u8".wor";
  const std::filesystem::path file = folder / name;
  writeLatin(file, yearWorkspace(year));
  return file;
}

// The statistics map: one table Estadisticas (name, type, indicator, value) of the provinces.
inline std::filesystem::path writeStatistics(const std::filesystem::path& folder) {
  std::filesystem::create_directories(folder);
  std::vector<std::string> rows;
  std::vector<std::string> objects;
  for (const Unit& unit : kProvinces) {
    for (const Indicator& indicator : kIndicators) {
      rows.push_back(inQuotes(unit.name) + "," + inQuotes(indicator.type) + "," + inQuotes(indicator.name) + "," +
                     text::number(indicator.value));
      objects.push_back(rectangle(unit));
    }
  }
  writeTable(folder, "Estadisticas", {"Nombre Char(40)", "Tipo Char(20)", "Indicador Char(120)", "Valor Float"}, rows,
             objects);
  const std::filesystem::path file = folder / "Estadisticas.wor";
  writeLatin(file, kFirstLines + openTable("Estadisticas") + "Map From Estadisticas\n");
  return file;
}

// A thematic map: one row a province (name, indicator, sex, year, value) and a theme of ranges.
inline std::filesystem::path writeThematic(const std::filesystem::path& folder) {
  std::filesystem::create_directories(folder);
  std::vector<std::string> rows;
  std::vector<std::string> objects;
  double value = 10.5;
  for (const Unit& unit : kProvinces) {
    rows.push_back(inQuotes(unit.name) + ",\"Tasa estandarizada (x100.000) de Tumores\",\"Ambos sexos\",\"2001\"," +
                   text::number(value));
    objects.push_back(rectangle(unit));
    value += 20;
  }
  writeTable(folder, "Tumores",
             {"Nombre Char(40)", "Indicador Char(120)", "Sexo Char(12)", "Año Char(4)", "Valor Float"}, rows, objects);
  const std::filesystem::path file = folder / "Tumores.wor";
  writeLatin(file, kFirstLines + openTable("Tumores") + "Map From Tumores\n" + kView +
                       "shade window FrontWindow() 1 with Valor\n"
                       "  ranges apply all use all Brush (2,16711680,16777215)\n"
                       "  0: 20 Brush (2,16777152,16777215) Pen (1,2,0) ,\n"
                       "  20: 40 Brush (2,16761024,16777215) Pen (1,2,0) ,\n"
                       "  40: 60 Brush (2,16711680,16777215) Pen (1,2,0)\n"
                       "  default Brush (2,16777215,16777215) Pen (1,2,0)\n"
                       "  # use 1 round 0.1 inflect off Brush (2,16776960,16777215) at 2 by 0 color 1 #\n"
                       "Set Map\n"
                       "  Layer 1\n"
                       "    Display Value\n"
                       "  Layer 2\n"
                       "    Display Graphic\n"
                       "    Label Line None Position Center Font (\"Arial\",0,9,0) Pen (1,2,0)\n" +
                       kLabelParts +
                       "set legend\n"
                       "  layer 1\n"
                       "    display on\n"
                       "    shades on\n"
                       "    symbols off\n"
                       "    lines off\n"
                       "    count on\n"
                       "    title \"Tumores\" Font (\"Arial\",0,9,0)\n"
                       "    subtitle auto Font (\"Arial\",0,8,0)\n"
                       "    ascending off\n"
                       "    ranges Font (\"Arial\",0,8,0)\n"
                       "      auto display off ,\n"
                       "      auto display on ,\n"
                       "      auto display on ,\n"
                       "      auto display on\n");
  return file;
}

// A folder of its own below the system's temporary folder, gone with the object.
class Folder {
 public:
  Folder() {
    std::random_device random;
    path_ = std::filesystem::temp_directory_path() / ("veldoria-session-" + std::to_string(random()));
    std::filesystem::create_directories(path_);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace motor::tiny
