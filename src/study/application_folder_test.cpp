#include "study/application_folder.h"

#include <gtest/gtest.h>
#include <ogrsf_frmts.h>

#include <set>

#include "study/input/read_input.h"
#include "study/output/test_folder.h"
#include "study/testing_builds.h"

namespace study {
namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;
using Columns = std::vector<std::string>;

constexpr std::array kSexNames{"Ambos sexos", "Hombres", "Mujeres"};
constexpr std::array kIndicatorNames{
    "Fallecidos",
    "Población",
    "Tasa bruta (x100.000)",
    "Tasa estandarizada (x100.000)",
    "Tasa estandarizada (x100.000) de Accidentes de tráfico de vehículos de motor",
    "Tasa estandarizada (x100.000) de Diabetes mellitus",
    "Tasa estandarizada (x100.000) de Enfermedades cerebrovasculares",
    "Tasa estandarizada (x100.000) de Enfermedades crónicas de las vías respiratorias inferiores excepto asma",
    "Tasa estandarizada (x100.000) de Enfermedades del sistema circulatorio",
    "Tasa estandarizada (x100.000) de Enfermedades del sistema digestivo",
    "Tasa estandarizada (x100.000) de Enfermedades del sistema respiratorio",
    "Tasa estandarizada (x100.000) de Infarto agudo de miocardio",
    "Tasa estandarizada (x100.000) de Neumonía",
    "Tasa estandarizada (x100.000) de Trastornos mentales orgánicos senil y presenil",
    "Tasa estandarizada (x100.000) de Tumor maligno de colon",
    "Tasa estandarizada (x100.000) de Tumor maligno de estómago",
    "Tasa estandarizada (x100.000) de Tumor maligno de la mama",
    "Tasa estandarizada (x100.000) de Tumor maligno de la próstata",
    "Tasa estandarizada (x100.000) de Tumor maligno de la tráquea, de los bronquios y del pulmón",
    "Tasa estandarizada (x100.000) de Tumores",
};

// The names of the files that a study is to have, in the program's own spelling.
class ExpectedNames {
 public:
  ExpectedNames(const std::vector<std::string>& years, const std::vector<std::string>& provinces)
      : years_(years), provinces_(provinces) {
    addYears();
    addCatalogue();
    addPages();
    names_.insert({"Estudio.txt", "Archivos/Creditos.html", "Archivos/Medologia.html", "Archivos/PRESENTACION.html",
                   "Archivos/Uso de la aplicacion.html", "Ayuda/Ayuda.html"});
  }
  [[nodiscard]] const Names& names() const { return names_; }

 private:
  void addTable(const std::string& table) {
    for (const char* ending : {".TAB", ".DAT", ".MAP", ".ID"}) names_.insert("Tablas/" + table + ending);
  }
  void addYears() {
    for (const std::string& year : years_) {
      for (const char* base : {"Provincias", "ZonasBasicas", "Veldoria"}) addTable(year + "/" + base + year);
      names_.insert("Tablas/" + year + "/Año" + year + ".wor");
      if (year != "2002") names_.insert("Archivos/mortalidad_" + year + ".pdf");
    }
    addTable("Estadisticas/Estadisticas");
    names_.insert("Tablas/Estadisticas/Estadisticas.wor");
  }
  void addMaps(const std::string& folder) {
    for (const std::string& year : years_) {
      for (const char* sex : kSexNames) {
        for (const char* indicator : kIndicatorNames) {
          const std::string map = "Tematicos/" + year + "/" + sex + "/" + folder + "/" + indicator;
          addTable(map);
          names_.insert("Tablas/" + map + ".wor");
        }
      }
    }
  }
  void addCatalogue() {
    addMaps("Veldoria/Provincias");
    addMaps("Veldoria/Zonas básicas");
    addTable("Base/Provincias");
    addTable("Base/ZonasBasicas");
    for (const std::string& province : provinces_) {
      addMaps(province);
      addTable("Base/Zonas/" + province);
    }
  }
  void addPages() {
    const std::string folder = "Tablas/HTML/";
    for (const std::string& year : years_) {
      for (const char* list : {"Grandes Grupos", "Lista reducida"}) {
        for (const char* sex : {"Ambos Sexos", "Mujeres", "Hombres"}) {
          names_.insert(folder + "0/" + list + "/" + year + " - " + sex + ".html");
        }
      }
      for (const std::string sex : kSexNames) {
        for (const char* kind : {"2", "3", "4"}) names_.insert(folder + kind + "/" + year + " - " + sex + ".html");
        for (const char* list : {"Grandes grupos", "Lista reducida"}) {
          for (const std::string& unit : provinces_) addAgePage(list, year, unit, sex);
          addAgePage(list, year, "Veldoria", sex);
        }
      }
    }
  }
  void addAgePage(const char* list, const std::string& year, const std::string& unit, const std::string& sex) {
    names_.insert(std::string("Tablas/HTML/1/") + list + "/" + year + " - " + unit + " - " + sex + ".html");
  }

  std::vector<std::string> years_;
  std::vector<std::string> provinces_;
  Names names_;
};

Names namesBelow(const fs::path& folder) {
  Names names;
  for (const auto& [name, bytes] : filesBelow(folder)) names.insert(name);
  return names;
}

// Names that only one of two sets has, which a failure is to tell rather than thousands.
Names differences(const Names& one, const Names& other) {
  Names names;
  std::set_symmetric_difference(one.begin(), one.end(), other.begin(), other.end(), std::inserter(names, names.end()));
  return names;
}

std::map<std::string, fs::file_time_type> timesBelow(const fs::path& folder) {
  std::map<std::string, fs::file_time_type> times;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) times[fs::relative(entry.path(), folder).string()] = entry.last_write_time();
  }
  return times;
}

// The study of a small region in two years, made once for all tests below, which leave it as it is.
class ApplicationFolder : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    root_ = fs::path(testing::TempDir()) / ("study_application_" + std::to_string(getpid()));
    fs::remove_all(root_);
    fs::create_directories(root_);
    ASSERT_EQ(generateSmall(root_ / "input", "1999,2001").code, 0);
    const ProgramRun built = runStudy({"build", (root_ / "input").string(), (root_ / "study").string()});
    ASSERT_EQ(built.code, 0) << built.err;
    RegisterOGRTAB();
  }
  static void TearDownTestSuite() { fs::remove_all(root_); }

  static fs::path input() { return root_ / "input"; }
  static fs::path made() { return root_ / "study"; }
  static std::vector<std::string> provinces() {
    return readInput(input(), [](const std::string&) {}).provinces;
  }

  // A copy that a test may change; beside it nothing else may appear.
  static fs::path copyOf(const fs::path& folder, const fs::path& place) {
    fs::copy(folder, place, fs::copy_options::recursive);
    return place;
  }
  static ProgramRun build(const fs::path& from, const fs::path& to) {
    return runStudy({"build", from.string(), to.string()});
  }
  static Columns columnsOf(const std::string& table) {
    const GDALDatasetUniquePtr dataset(
        GDALDataset::Open((made() / "Tablas" / (table + ".TAB")).c_str(), GDAL_OF_VECTOR, nullptr, nullptr, nullptr));
    if (!dataset) return {"no table " + table};
    const OGRFeatureDefn& definition = *dataset->GetLayer(0)->GetLayerDefn();
    Columns names;
    for (int i = 0; i < definition.GetFieldCount(); ++i) names.emplace_back(definition.GetFieldDefn(i)->GetNameRef());
    return names;
  }

  inline static fs::path root_;
};

TEST_F(ApplicationFolder, HoldsItsFilesAndNoOthers) {
  ASSERT_EQ(provinces().size(), 3U);
  const Names expected = ExpectedNames({"1999", "2001"}, provinces()).names();
  EXPECT_GT(expected.size(), 3000U);
  EXPECT_EQ(differences(namesBelow(made()), expected), Names());
}

TEST_F(ApplicationFolder, HoldsTheFilesOfOneYear) {
  const TestFolder test;
  ASSERT_EQ(generateSmall(test.path() / "input", "2002").code, 0);
  const ProgramRun built = build(test.path() / "input", test.path() / "study");
  ASSERT_EQ(built.code, 0) << built.err;
  EXPECT_EQ(differences(namesBelow(test.path() / "study"), ExpectedNames({"2002"}, provinces()).names()), Names());
}

TEST_F(ApplicationFolder, GivesEachKindOfTableItsColumns) {
  for (const std::string year : {"1999", "2001"}) {
    const Columns columns{"Año", "Nombre", "Sexo", "Tipo", "Indicador", "Valor"};
    EXPECT_EQ(columnsOf(year + "/Provincias" + year), columns);
    EXPECT_EQ(columnsOf(year + "/Veldoria" + year), columns);
    EXPECT_EQ(columnsOf(year + "/ZonasBasicas" + year),
              (Columns{"Año", "Nombre", "Provincia", "Sexo", "Tipo", "Indicador", "Valor"}));
  }
  EXPECT_EQ(columnsOf("Estadisticas/Estadisticas"), (Columns{"Nombre", "Tipo", "Indicador", "Valor"}));
  for (const std::string& folder : {std::string("Veldoria/Provincias"), std::string("Veldoria/Zonas básicas"),
                                    provinces().front(), provinces().back()}) {
    for (const std::string indicator : kIndicatorNames) {
      EXPECT_EQ(columnsOf("Tematicos/2001/Mujeres/" + folder + "/" + indicator),
                (Columns{"Nombre", "Indicador", "Sexo", "Tipo", "Valor"}));
    }
  }
  for (const std::string& base : {std::string("Provincias"), std::string("ZonasBasicas"), "Zonas/" + provinces()[0]}) {
    EXPECT_EQ(columnsOf("Base/" + base), Columns{"Nombre"});
  }
}

TEST_F(ApplicationFolder, HasTheSameBytesFromTheSameInput) {
  const TestFolder test;
  ASSERT_EQ(build(input(), test.path() / "study").code, 0);
  const auto first = filesBelow(made());
  const auto second = filesBelow(test.path() / "study");
  ASSERT_EQ(first.size(), second.size());
  for (const auto& [name, bytes] : first) EXPECT_TRUE(second.contains(name) && second.at(name) == bytes) << name;
}

// Only what depends on a changed number is written anew; what the study did not make stays.
TEST_F(ApplicationFolder, KeepsTheTimesOfFilesThatDoNotChange) {
  const TestFolder test;
  const fs::path changed = copyOf(input(), test.path() / "input");
  const fs::path study = copyOf(made(), test.path() / "study");
  writeBytes(study / "veldoria", "the program");
  const auto old = fs::file_time_type::clock::now() - std::chrono::hours(1);
  for (const auto& [name, time] : timesBelow(study)) fs::last_write_time(study / name, old);

  ASSERT_EQ(build(changed, study).code, 0);
  for (const auto& [name, time] : timesBelow(study)) EXPECT_EQ(time, old) << name;
  EXPECT_EQ(bytesOf(study / "veldoria"), "the program");

  std::string population = bytesOf(changed / "population.csv");
  const std::size_t line = population.rfind("\n2001,");
  population.insert(population.find_last_of('\n'), "7");  // ten times as many of the last, and some
  ASSERT_LT(line, population.size());
  writeBytes(changed / "population.csv", population);
  ASSERT_EQ(build(changed, study).code, 0);
  const auto times = timesBelow(study);
  for (const char* name : {"Tablas/2001/ZonasBasicas2001.DAT", "Tablas/2001/Veldoria2001.DAT",
                           "Tablas/HTML/4/2001 - Mujeres.html", "Tablas/HTML/4/2001 - Ambos sexos.html"}) {
    EXPECT_GT(times.at(name), old) << name;
  }
  for (const char* name :
       {"veldoria", "Tablas/1999/ZonasBasicas1999.DAT", "Tablas/1999/Año1999.wor", "Tablas/2001/ZonasBasicas2001.MAP",
        "Tablas/HTML/4/1999 - Ambos sexos.html", "Tablas/HTML/4/2001 - Hombres.html", "Tablas/Base/Provincias.MAP"}) {
    EXPECT_EQ(times.at(name), old) << name;
  }
}

TEST_F(ApplicationFolder, StaysAsItIsWhenTheInputHasAFault) {
  const TestFolder test;
  const fs::path faulty = copyOf(input(), test.path() / "input");
  const fs::path study = copyOf(made(), test.path() / "study");
  std::ofstream(faulty / "deaths.csv", std::ios::app) << "1999,Ninguna Parte,Hombres,0,I21,1\n";
  const auto bytes = filesBelow(study);
  const auto times = timesBelow(study);

  for (const char* output : {"study", "new"}) {
    const ProgramRun built = build(faulty, test.path() / output);
    EXPECT_EQ(built.code, 1);
    EXPECT_NE(built.err.find("deaths.csv:"), std::string::npos) << built.err;
    EXPECT_NE(built.err.find("Ninguna Parte"), std::string::npos) << built.err;
    EXPECT_NE(built.err.find("nothing was written"), std::string::npos) << built.err;
    EXPECT_EQ(built.out.find("done"), std::string::npos) << built.out;
  }
  EXPECT_TRUE(filesBelow(study) == bytes);
  EXPECT_TRUE(timesBelow(study) == times);
  Names beside;
  for (const fs::directory_entry& entry : fs::directory_iterator(test.path())) beside.insert(entry.path().filename());
  EXPECT_EQ(beside, (Names{"input", "study"})) << "neither a new study nor a draft is left";
}

TEST_F(ApplicationFolder, IsNotWrittenOverAnythingElse) {
  const TestFolder test;
  fs::create_directories(test.path() / "letters");
  writeBytes(test.path() / "letters" / "letter.txt", "dear");
  writeBytes(test.path() / "note", "a note");
  const auto bytes = filesBelow(test.path());
  for (const char* output : {"letters", "note", "note/inside"}) {
    const ProgramRun built = build(input(), test.path() / output);
    EXPECT_EQ(built.code, 1) << output;
    EXPECT_NE(built.err.find("study: "), std::string::npos) << output;
  }
  EXPECT_NE(build(input(), test.path() / "letters").err.find("is there already and is no study"), std::string::npos);
  EXPECT_TRUE(filesBelow(test.path()) == bytes);
}

TEST_F(ApplicationFolder, IsWrittenIntoAnEmptyFolder) {
  const TestFolder test;
  const ProgramRun built = build(input(), test.path());
  EXPECT_EQ(built.code, 0) << built.err;
  EXPECT_EQ(differences(namesBelow(test.path()), namesBelow(made())), Names());
}

}  // namespace
}  // namespace study
