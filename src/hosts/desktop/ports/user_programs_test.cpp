#include "hosts/desktop/ports/user_programs.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <map>
#include <utility>

#include "hosts/desktop/ports/desktop_entries.h"
#include "hosts/desktop/test_files.h"

namespace desktop {
namespace {

// A desktop of its own, with nothing on it.
class UsersDesktop : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const auto& [name, value] : {std::pair{"XDG_DATA_HOME", "data"}, std::pair{"XDG_CONFIG_HOME", "config"},
                                      std::pair{"XDG_DATA_DIRS", "system"}, std::pair{"XDG_CONFIG_DIRS", "etc"}}) {
      before[name] = qgetenv(name);
      qputenv(name, folder.filePath(QLatin1String(value)).toUtf8());
    }
    before["XDG_CURRENT_DESKTOP"] = qgetenv("XDG_CURRENT_DESKTOP");
    qputenv("XDG_CURRENT_DESKTOP", "Prueba");
  }
  void TearDown() override {
    for (const auto& [name, value] : before) value.isNull() ? qunsetenv(name) : qputenv(name, value);
  }

  void write(const char* name, const QByteArray& text) {
    testing::writeFile(folder.filePath(QLatin1String(name)), text);
  }
  // A program that notes its words in the file "abierto", one a line.
  QByteArray program(const char* name) {
    const QByteArray path = folder.filePath(QLatin1String(name)).toUtf8();
    write(name, "#!/bin/sh\nfor word in \"$0\" \"$@\"; do echo \"$word\"; done > '" + opened().toUtf8() +
                    ".tmp'\nmv '" + opened().toUtf8() + ".tmp' '" + opened().toUtf8() + "'\n");
    QFile::setPermissions(QString::fromUtf8(path), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
  }
  static QByteArray quoted(const QByteArray& path) { return '"' + path + '"'; }
  void entry(const char* name, const QByteArray& exec, const QByteArray& more = {}) {
    write((QByteArray("data/applications/") + name).constData(),
          "[Desktop Entry]\nType=Application\nName=Prueba\nExec=" + exec + "\n" + more);
  }
  [[nodiscard]] QString opened() const { return folder.filePath(QStringLiteral("abierto")); }
  [[nodiscard]] std::string readOpened() const {
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(opened()); }, 10'000));
    QFile file(opened());
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
  }
  [[nodiscard]] static QString programFor(const char* kind) {
    return commandToOpen(QStringLiteral("/a/b.x"), QLatin1String(kind)).value(0).section(u'/', -1);
  }

  QTemporaryDir folder;
  std::map<const char*, QByteArray> before;
  UserPrograms programs;
};

TEST_F(UsersDesktop, WithoutAReaderHasNone) {
  EXPECT_FALSE(programs.has(Stand::pdfReader));
  EXPECT_TRUE(programs.has(Stand::browser));
  EXPECT_FALSE(programs.open("/estudio/informe.pdf"));
}

TEST_F(UsersDesktop, OpensReportsAndPagesWithWhatTheUserHasChosen) {
  const QByteArray reader = program("mi lector");
  const QByteArray navigator = program("navegador");
  entry("lector.desktop", quoted(reader) + " --ver %f");
  entry("navegador.desktop", quoted(navigator) + " %U");
  write("config/mimeapps.list",
        "[Default Applications]\napplication/pdf=nada.desktop;lector.desktop;\ntext/html=navegador.desktop\n");
  EXPECT_TRUE(programs.has(Stand::pdfReader));
  ASSERT_TRUE(programs.open("/estudio/Archivos/mortalidad 1999.pdf"));
  EXPECT_EQ(readOpened(), reader.toStdString() + "\n--ver\n/estudio/Archivos/mortalidad 1999.pdf\n");
  QFile::remove(opened());
  ASSERT_TRUE(programs.open("/estudio/Archivos/Uso de la aplicación.html"));
  EXPECT_EQ(readOpened(),
            navigator.toStdString() + "\nfile:///estudio/Archivos/Uso%20de%20la%20aplicaci%C3%B3n.html\n");
}

TEST_F(UsersDesktop, ChoicesCountInTheirOrder) {
  for (const char* name : {"uno", "dos", "tres", "cuatro", "cinco"}) {
    entry((QByteArray(name) + ".desktop").constData(), quoted(program(name)) + " %f");
  }
  entry("cinco.desktop", quoted(program("cinco")), "MimeType=text/plain;application/pdf;\n");
  EXPECT_EQ(programFor("application/pdf"), "cinco");
  EXPECT_EQ(programFor("application/xml"), "");
  write("data/applications/mimeinfo.cache", "[MIME Cache]\napplication/pdf=cuatro.desktop;\n");
  EXPECT_EQ(programFor("application/pdf"), "cuatro");
  write("data/applications/mimeapps.list", "[Added Associations]\napplication/pdf=tres.desktop;\n");
  EXPECT_EQ(programFor("application/pdf"), "tres");
  write("config/mimeapps.list", "[Default Applications]\napplication/pdf=dos.desktop\n");
  EXPECT_EQ(programFor("application/pdf"), "dos");
  write("config/prueba-mimeapps.list", "[Default Applications]\napplication/pdf=uno.desktop\n");
  EXPECT_EQ(programFor("application/pdf"), "uno");
}

TEST_F(UsersDesktop, AssociationsThatWereTakenBackDoNotCount) {
  entry("uno.desktop", quoted(program("uno")), "MimeType=application/pdf;\n");
  write("config/mimeapps.list", "[Removed Associations]\napplication/pdf=uno.desktop;\n");
  EXPECT_EQ(programFor("application/pdf"), "");
}

TEST_F(UsersDesktop, EntriesThatCannotBeStartedDoNotCount) {
  const QByteArray kind = "MimeType=application/pdf;\n";
  entry("a.desktop", "/no/hay %f", kind);
  entry("b.desktop", quoted(program("b")), kind + "Hidden=true\n");
  entry("c.desktop", quoted(program("c")), kind + "Terminal=true\n");
  entry("d.desktop", quoted(program("d")), kind + "TryExec=/no/hay\n");
  entry("e.desktop", "", kind);
  EXPECT_EQ(programFor("application/pdf"), "");
  EXPECT_FALSE(programs.has(Stand::pdfReader));
}

TEST_F(UsersDesktop, AHyphenMayStandForAFolder) {
  entry("kde/lector-simple.desktop", quoted(program("simple")));
  write("config/mimeapps.list", "[Default Applications]\napplication/pdf=kde-lector-simple.desktop\n");
  EXPECT_EQ(programFor("application/pdf"), "simple");
  write("config/mimeapps.list", "[Default Applications]\napplication/pdf=../../a.desktop\n");
  EXPECT_EQ(programFor("application/pdf"), "");
}

TEST(CommandWithFile, PutsTheFileWhereTheLineWantsIt) {
  const QString file = QStringLiteral("/a b.pdf");
  EXPECT_EQ(commandWithFile("lector %f", file), QStringList({"lector", file}));
  EXPECT_EQ(commandWithFile("lector %U --x", file), QStringList({"lector", "file:///a%20b.pdf", "--x"}));
  EXPECT_EQ(commandWithFile("\"/mi lector\" -t \"a \\\"b\\\"\" %i %c %k 5%%", file),
            QStringList({"/mi lector", "-t", "a \"b\"", "5%", file}));
  EXPECT_EQ(commandWithFile("", file), QStringList());
  EXPECT_EQ(commandWithFile("  ", file), QStringList());
}

}  // namespace
}  // namespace desktop
