#include "hosts/desktop/pages/study_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace desktop::pages {
namespace {

class StudyFolders : public ::testing::Test {
 protected:
  void SetUp() override {
    write("fuera.html");
    write("Veldoria/Tablas/HTML/0/uno.html");
    write("Veldoria/Tablas/HTML/Ayuda/dos.html");
    write("Veldoria/Ayuda/Ayuda.html");
  }
  void write(const char* name) {
    const QString path = outer.filePath(QString::fromUtf8(name));
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(name);
  }
  [[nodiscard]] QString path(const char* name) const { return outer.filePath(QString::fromUtf8(name)); }
  [[nodiscard]] QUrl url(const char* name) const { return QUrl::fromLocalFile(path(name)); }

  QTemporaryDir outer;
};

TEST_F(StudyFolders, ArePutAroundAPageByTheFoldersOfPages) {
  const StudyFolder study = StudyFolder::around(path("Veldoria/Tablas/HTML/0/uno.html"));
  EXPECT_FALSE(study.fileAt(url("Veldoria/Tablas/HTML/0/uno.html")).isEmpty());
  EXPECT_FALSE(study.fileAt(url("Veldoria/Ayuda/Ayuda.html")).isEmpty());
  EXPECT_TRUE(study.fileAt(url("fuera.html")).isEmpty());
  // The nearest such folder counts, and a page need not be there.
  const StudyFolder inner = StudyFolder::around(path("Veldoria/Tablas/HTML/ayuda/tres.html"));
  EXPECT_FALSE(inner.fileAt(url("Veldoria/Tablas/HTML/0/uno.html")).isEmpty());
  EXPECT_TRUE(inner.fileAt(url("Veldoria/Ayuda/Ayuda.html")).isEmpty());
  const StudyFolder own = StudyFolder::around(path("fuera.html"));
  EXPECT_FALSE(own.fileAt(url("fuera.html")).isEmpty());
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
}

}  // namespace
}  // namespace desktop::pages
