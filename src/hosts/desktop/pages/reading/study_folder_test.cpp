#include "hosts/desktop/pages/reading/study_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>

namespace desktop::pages {
namespace {

class StudyFolders : public ::testing::Test {
 protected:
  void SetUp() override {
    write("fuera.html");
    write("Veldoria/Tablas/HTML/0/uno.html");
    write("Veldoria/Ayuda/Ayuda.html");
  }
  void write(const char* name) {
    const std::filesystem::path file = path(name).toStdString();
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << name;
  }
  [[nodiscard]] QString path(const char* name) const { return outer.filePath(QString::fromUtf8(name)); }
  [[nodiscard]] QUrl url(const char* name) const { return QUrl::fromLocalFile(path(name)); }

  QTemporaryDir outer;
};

TEST_F(StudyFolders, HoldTheFilesOfTheStudy) {
  const StudyFolder study(path("Veldoria"));
  EXPECT_FALSE(study.fileAt(url("Veldoria/Tablas/HTML/0/uno.html")).isEmpty());
  EXPECT_FALSE(study.fileAt(url("Veldoria/Ayuda/Ayuda.html")).isEmpty());
  for (const char* name : {"", "nada"}) EXPECT_TRUE(StudyFolder(name).fileAt(url("fuera.html")).isEmpty()) << name;
}

TEST_F(StudyFolders, HoldNothingThatIsOutside) {
  const StudyFolder study(path("Veldoria"));
  ASSERT_TRUE(QFile::link(path("fuera.html"), path("Veldoria/enlace.html")));
  ASSERT_TRUE(QFile::link(outer.path(), path("Veldoria/carpeta")));
  ASSERT_TRUE(QFile::link(path("Veldoria/Ayuda"), path("Veldoria/Otra")));
  QDir().mkpath(path("VeldoriaOtra"));
  write("VeldoriaOtra/uno.html");
  for (const QUrl& address :
       {url("Veldoria/../fuera.html"), url("Veldoria/enlace.html"), url("Veldoria/carpeta/fuera.html"),
        url("VeldoriaOtra/uno.html"), url("Veldoria"), url("Veldoria/Ayuda"), url("Veldoria/nada.html"),
        QUrl(QStringLiteral("file:///etc/passwd")),
        QUrl(QStringLiteral("http://localhost") + path("Veldoria/Ayuda/Ayuda.html")),
        QUrl(QStringLiteral("file://otro") + path("Veldoria/Ayuda/Ayuda.html")),
        QUrl(QStringLiteral("qrc:/veldoria.qss")), QUrl(QStringLiteral("data:text/html,a")),
        QUrl(QStringLiteral("Ayuda/Ayuda.html")), QUrl(),
        QUrl(url("Veldoria/Ayuda/Ayuda.html").toString() + QStringLiteral("%00"))}) {
    EXPECT_TRUE(study.fileAt(address).isEmpty()) << address.toString().toStdString();
  }
  EXPECT_EQ(study.fileAt(url("Veldoria/Otra/Ayuda.html")), path("Veldoria/Ayuda/Ayuda.html"));
  EXPECT_TRUE(StudyFolder().fileAt(url("fuera.html")).isEmpty());
}

TEST_F(StudyFolders, NamesAreMatchedWithoutRegardToCase) {
  EXPECT_EQ(StudyFolder(path("VELDORIA")).fileAt(url("veldoria/AYUDA/ayuda.HTML")), path("Veldoria/Ayuda/Ayuda.html"));
}

TEST_F(StudyFolders, FilesAreReadSoFar) {
  EXPECT_EQ(firstBytes(path("fuera.html"), 5), "fuera");
  EXPECT_EQ(firstBytes(path("nada.html"), 5), "");
  EXPECT_EQ(firstBytes(outer.path(), 5), "");
  static int warnings = 0;
  const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++warnings; });
  EXPECT_EQ(firstBytes("", 5), "");
  qInstallMessageHandler(before);
  EXPECT_EQ(warnings, 0);
}

}  // namespace
}  // namespace desktop::pages
