#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "study/model/study_error.h"
#include "study/pages/documents.h"
#include "study/pages/page_file.h"
#include "study/pages/table_pages.h"
#include "study/pages/test_html.h"
#include "study/pages/test_study.h"
#include "text/file_text.h"

namespace study::pages {
namespace {

namespace fs = std::filesystem;

// An empty folder, removed at the end. Names hold accents and quotes, and no "<", which no file may hold.
class PageFiles : public testing::Test {
 protected:
  PageFiles()
      : folder_(fs::path(testing::TempDir()) / ("study_pages_" + std::to_string(getpid()))), study_(testStudy()) {
    fs::remove_all(folder_);
  }
  ~PageFiles() override { fs::remove_all(folder_); }

  [[nodiscard]] std::set<std::string> files() const {
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
      if (entry.is_regular_file()) names.insert(text::fromPath(fs::relative(entry.path(), folder_)));
    }
    return names;
  }

  fs::path folder_;
  Study study_;
};

TEST_F(PageFiles, TablesAreNamedAsTheProgramAsks) {
  study_.provinces = {"Alta", "Ñora & Río", "Zona d'Arriba"};
  writeTablePages(study_, folder_);
  std::set<std::string> expected;
  const std::string root = "Tablas/HTML/";
  for (const std::string list : {"Grandes Grupos", "Lista reducida"}) {
    for (const std::string sex : {"Ambos Sexos", "Mujeres", "Hombres"}) {
      expected.insert(root + "0/" + list + "/1999 - " + sex + ".html");
    }
  }
  for (const std::string sex : {"Ambos sexos", "Mujeres", "Hombres"}) {
    for (const std::string list : {"Grandes grupos", "Lista reducida"}) {
      for (const std::string unit : {"Veldoria", "Alta", "Ñora & Río", "Zona d'Arriba"}) {
        expected.insert(root + "1/" + list + "/1999 - " + unit + " - " + sex + ".html");
      }
    }
    for (const std::string table : {"2", "3", "4"}) expected.insert(root + table + "/1999 - " + sex + ".html");
  }
  EXPECT_EQ(files(), expected);
}

TEST_F(PageFiles, HoldThePageThatTheirNameSays) {
  writeTablePages(study_, folder_);
  const auto bytes = text::wholeFile(folder_ / "Tablas/HTML/1/Lista reducida/1999 - Alta - Hombres.html");
  ASSERT_TRUE(bytes);
  EXPECT_EQ(*bytes, deathsByAgePage(YearFigures(study_, 0), {UnitKind::province, 0}, kReducedList, kMen));
  const auto first = text::wholeFile(folder_ / "Tablas/HTML/0/Grandes Grupos/1999 - Ambos Sexos.html");
  EXPECT_EQ(first.value_or(""), lifeLostPage(YearFigures(study_, 0), kBroadGroups, kBoth));
}

TEST_F(PageFiles, DocumentsAreNamedAsTheProgramAsks) {
  writeDocuments(study_, folder_);
  EXPECT_EQ(files(),
            (std::set<std::string>{"Archivos/Creditos.html", "Archivos/Medologia.html", "Archivos/PRESENTACION.html",
                                   "Archivos/Uso de la aplicacion.html", "Ayuda/Ayuda.html"}));
  EXPECT_EQ(text::wholeFile(folder_ / "Archivos/Medologia.html").value_or(""), methodologyPage(study_));
}

TEST_F(PageFiles, FailWhereNothingCanBeWritten) {
  fs::create_directories(folder_);
  std::ofstream(folder_ / "Tablas") << "in the way";
  EXPECT_THROW(writeTablePages(study_, folder_), StudyError);
  EXPECT_THROW(writePage(folder_, "Tablas/a.html", ""), StudyError);
}

}  // namespace
}  // namespace study::pages
