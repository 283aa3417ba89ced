#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "study/input/read_input.h"

// For this folder's tests: a small input of three provinces with two zones each, two years and four age groups. A test
// changes its files and then reads it.
namespace study {

inline const std::vector<std::string> kTestZones{"Nava", "Ñora", "Olmo", "Pinar", "Quejo", "Rubio"};

// The persons that the input gives by the places of the year, the zone, the sex and the age group in its files.
inline long testPersons(std::size_t year, std::size_t zone, std::size_t sex, std::size_t age) {
  return static_cast<long>(1000 + 1000 * zone + 100 * age + 10 * year + sex);
}

class TestInput {
 public:
  std::map<std::string, std::string> files;  // by name

  TestInput();
  ~TestInput() { std::filesystem::remove_all(folder_); }
  TestInput(const TestInput&) = delete;
  TestInput& operator=(const TestInput&) = delete;

  [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }

  // Replaces the first `from` in a file, which has one.
  void replace(const std::string& file, const std::string& from, const std::string& to) {
    std::string& text = files.at(file);
    const std::size_t at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from << " is not in " << file;
    text.replace(at, from.size(), to);
  }

  // Leaves out a line, given by its number.
  void removeLine(const std::string& file, std::size_t line) {
    std::string& text = files.at(file);
    std::size_t start = 0;
    for (std::size_t i = 1; i < line; ++i) start = text.find('\n', start) + 1;
    text.erase(start, text.find('\n', start) + 1 - start);
  }

  Study read() const {
    write();
    return readInput(folder_, {});
  }

  // The faults of reading it, a text each; empty: it could be read.
  std::vector<std::string> faults() const {
    std::vector<std::string> texts;
    try {
      (void)read();
    } catch (const InputFaults& faults) {
      for (const Fault& fault : faults.faults()) texts.push_back(fault.text());
    }
    return texts;
  }

  void write() const {
    for (const auto& [name, text] : files) std::ofstream(folder_ / name, std::ios::binary) << text;
  }

 private:
  std::filesystem::path folder_;
};

// The outline of a box of degrees as a map file has it.
inline std::string boxText(double west, double south, double east, double north) {
  const auto point = [](double x, double y) { return "[" + std::to_string(x) + ", " + std::to_string(y) + "]"; };
  return "[[" + point(west, south) + ", " + point(east, south) + ", " + point(east, north) + ", " + point(west, north) +
         ", " + point(west, south) + "]]";
}

inline std::string zonesText() {
  std::string text = "{\"type\": \"FeatureCollection\", \"features\": [\n";
  for (std::size_t i = 0; i < kTestZones.size(); ++i) {
    const std::vector<std::string> provinces{"Ribera", "Álamos", "Zarzal"};
    const double west = -3.3 + 0.1 * static_cast<double>(i / 2);
    const double south = 40 + 0.05 * static_cast<double>(i % 2);
    text += std::string(i > 0 ? ",\n" : "") + R"({"type": "Feature", "properties": {"zone": ")" + kTestZones[i] +
            R"(", "province": ")" + provinces[i / 2] + R"("}, "geometry": {"type": "Polygon", "coordinates": )" +
            boxText(west, south, west + 0.1, south + 0.05) + "}}";
  }
  return text + "\n]}\n";
}

inline std::string populationText() {
  std::string text = "year,zone,sex,age_group,persons\n";
  const std::vector<std::string> ages{"0", "1-14", "15-64", "65+"};
  for (std::size_t row = 0; row < 2 * 6 * 2 * 4; ++row) {
    const std::size_t age = row % 4;
    const std::size_t sex = row / 4 % 2;
    const std::size_t zone = row / 8 % 6;
    const std::size_t year = row / 48;
    text += std::string(year == 0 ? "1999" : "2001") + "," + kTestZones[zone] + "," +
            (sex == 0 ? "Hombres" : "Mujeres") + "," + ages[age] + "," +
            std::to_string(testPersons(year, zone, sex, age)) + "\n";
  }
  return text;
}

inline constexpr const char* kTestSettings = R"(# The settings of a small study.
region = "Veldoria"
years = [1999, 2001]
standard = "standard.csv"
suppress_below = 3
utm_zone = 30
source = "Registro de mortalidad"

[presentation]
title = "Presentación"
text = """
Primera línea.

Segunda "línea"."""

[credits]
title = "Créditos"
)";

inline constexpr const char* kTestCauses = R"(code,cause,list,sums,sex
I,Tumores,Grandes grupos,colon estomago mama prostata pulmon otrostumores,
II,Enfermedades del sistema circulatorio,Grandes grupos,cerebro infarto otrascirculatorio,
III,Enfermedades del sistema respiratorio,Grandes grupos,epoc neumonia otrasrespiratorio,
IV,Otras causas,Grandes grupos,diabetes digestivo mentales trafico,
1,Accidentes de tráfico de vehículos de motor,Lista reducida,trafico,
2,Diabetes mellitus,Lista reducida,diabetes,
3,Enfermedades cerebrovasculares,Lista reducida,cerebro,
4,Enfermedades crónicas de las vías respiratorias inferiores excepto asma,Lista reducida,epoc,
5,Enfermedades del sistema circulatorio,Lista reducida,cerebro infarto otrascirculatorio,
6,Enfermedades del sistema digestivo,Lista reducida,digestivo,
7,Enfermedades del sistema respiratorio,Lista reducida,epoc neumonia otrasrespiratorio,
8,Infarto agudo de miocardio,Lista reducida,infarto,
9,Neumonía,Lista reducida,neumonia,
10,Trastornos mentales orgánicos senil y presenil,Lista reducida,mentales,
11,Tumor maligno de colon,Lista reducida,colon,
12,Tumor maligno de estómago,Lista reducida,estomago,
13,Tumor maligno de la mama,Lista reducida,mama,Ambos sexos
14,Tumor maligno de la próstata,Lista reducida,prostata,Hombres
15,"Tumor maligno de la tráquea, de los bronquios y del pulmón",Lista reducida,pulmon,
16,Tumores,Lista reducida,colon estomago mama prostata pulmon otrostumores,
)";

inline constexpr const char* kTestDeaths = R"(year,zone,sex,age_group,cause,count
1999,Nava,Hombres,65+,prostata,3
1999,Nava,Mujeres,65+,mama,2
2001,Ñora,Hombres,15-64,trafico,1
1999,Olmo,Mujeres,0,otrostumores,1
2001,Rubio,Hombres,65 y más,infarto,7
)";

inline constexpr const char* kTestStandard = "age_group;weight\n0;1,5\n1-14;20\n15-64;60\n65+;18,5\n";

inline TestInput::TestInput() {
  static int count = 0;
  folder_ = std::filesystem::path(testing::TempDir()) /
            ("study_input_" + std::to_string(getpid()) + "_" + std::to_string(++count));
  std::filesystem::remove_all(folder_);
  std::filesystem::create_directories(folder_);
  files = {{"study.toml", kTestSettings},        {"causes.csv", kTestCauses},     {"deaths.csv", kTestDeaths},
           {"population.csv", populationText()}, {"standard.csv", kTestStandard}, {"zones.geojson", zonesText()}};
}

}  // namespace study
