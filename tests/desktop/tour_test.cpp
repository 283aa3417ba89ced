#include "hosts/desktop/tour.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <fstream>
#include <sstream>

namespace desktop {
namespace {

namespace fs = std::filesystem;

// The tour on a copy of the tiny study that has the documents too.
class Tours : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::copy(VELDORIA_TINY_STUDY, study, fs::copy_options::recursive);
    for (const char* name : {"PRESENTACION.html", "Medologia.html", "Uso de la aplicacion.html", "Creditos.html",
                             "mortalidad_1999.pdf", "mortalidad_2000.pdf", "mortalidad_2001.pdf"}) {
      write(study / "Archivos" / name);
    }
    write(study / "Ayuda" / "Ayuda.html");
    fs::create_directory(pictures);
  }
  static void write(const fs::path& file) {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << "texto";
  }
  [[nodiscard]] bool walk() {
    DesktopProgram program(study.string(), programs);
    Tour tour(program, programs, pictures, log);
    return tour.walk() && program.isOver();
  }

  QTemporaryDir folder;
  fs::path study = fs::path(folder.path().toStdString()) / "estudio";
  fs::path pictures = fs::path(folder.path().toStdString()) / "fotos";
  NotedPrograms programs;
  std::ostringstream log;
};

TEST_F(Tours, GoesThroughAndLeavesItsPictures) {
  EXPECT_TRUE(walk()) << log.str();
  const QStringList taken = QDir(QString::fromStdString(pictures.string())).entryList({QStringLiteral("*.png")});
  EXPECT_EQ(taken.size(), 29) << taken.join('\n').toStdString();
  for (const QString& picture : taken) {
    EXPECT_FALSE(QImage(QString::fromStdString(pictures.string()) + '/' + picture).isNull()) << picture.toStdString();
  }
  for (const char* said : {"Se abre ", "La ayuda", "mortalidad_2001.pdf", "Impreso: ", "Exportada: ", "«Salir»"}) {
    EXPECT_NE(log.str().find(said), std::string::npos) << said;
  }
}

TEST_F(Tours, SaysWhatIsMissing) {
  fs::remove(study / "Archivos" / "Creditos.html");
  EXPECT_FALSE(walk());
  EXPECT_NE(log.str().find("no se ha abierto ningún documento: Label1"), std::string::npos) << log.str();
}

}  // namespace
}  // namespace desktop
