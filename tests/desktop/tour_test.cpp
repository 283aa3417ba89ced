#include "hosts/desktop/tour.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <sstream>

#include "tour_study.h"

namespace desktop {
namespace {

namespace fs = std::filesystem;

// The tour on a copy of the tiny study that has the documents too.
class Tours : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::makeTourStudy(study);
    fs::create_directory(pictures);
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
  EXPECT_EQ(taken.size(), 31) << taken.join('\n').toStdString();
  for (const QString& picture : taken) {
    EXPECT_FALSE(QImage(QString::fromStdString(pictures.string()) + '/' + picture).isNull()) << picture.toStdString();
  }
  for (const char* said :
       {"Se abre ", "La ayuda", "mortalidad_2001.pdf", "Impreso: ", "Exportada: ", "Arrastrado: ", "«Salir»"}) {
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
