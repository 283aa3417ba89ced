#include "hosts/desktop/proposed_files.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTimer>

#include "hosts/desktop/user_hands.h"

namespace desktop {
namespace {

// A user with a folder for documents, whose place the toolkit asks the environment for.
class ProposedFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toUtf8());
    QDir().mkpath(home.filePath("config"));
    QDir().mkpath(home.filePath("Mis documentos"));
    QFile folders(home.filePath("config/user-dirs.dirs"));
    ASSERT_TRUE(folders.open(QIODevice::WriteOnly));
    folders.write("XDG_DOCUMENTS_DIR=\"" + home.filePath("Mis documentos").toUtf8() + "\"\n");
  }
  void TearDown() override { before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before); }
  [[nodiscard]] std::string documents(const char* name) const {
    return home.filePath(QLatin1String("Mis documentos/") + QString::fromUtf8(name)).toStdString();
  }
  // What the dialog for this document proposes.
  static std::string printedTo(const char* document) {
    QPrinter printer;
    printer.setDocName(QString::fromUtf8(document));
    QPrintDialog dialog(&printer);
    dialog.show();
    hands::settle();
    return dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->text().toStdString();
  }

  QTemporaryDir home;
  QByteArray before;
};

TEST_F(ProposedFiles, LieAmongTheUsersDocuments) {
  EXPECT_EQ(proposedFile("Indicadores, 1999/2000").toStdString(), documents("Indicadores, 1999-2000"));
  QDir(home.filePath("Mis documentos")).removeRecursively();
  EXPECT_EQ(proposedFile("a"), QDir::homePath() + "/a");
}

TEST_F(ProposedFiles, OfAPrintDialogAreNamedAfterTheDocument) {
  EXPECT_EQ(printedTo("Población de Ñorga, 1999"), documents("Población de Ñorga, 1999.pdf"));
  EXPECT_EQ(printedTo("Tasa x 1.000 habitantes"), documents("Tasa x 1.000 habitantes.pdf"));
  EXPECT_EQ(printedTo("1999 - Hombres.html"), documents("1999 - Hombres.pdf"));
  EXPECT_EQ(printedTo("Hombres/mujeres"), documents("Hombres-mujeres.pdf"));
  EXPECT_EQ(printedTo(""), documents("Documento.pdf"));
  EXPECT_LT(QFileInfo(QString::fromStdString(printedTo(QByteArray(400, 'x').constData()))).fileName().size(), 120);
}

TEST_F(ProposedFiles, AreLeftToWhoHasChosenOne) {
  QPrinter printer;
  printer.setOutputFileName(home.filePath("elegido.pdf"));
  QPrintDialog dialog(&printer);
  dialog.show();
  hands::settle();
  EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->text(), home.filePath("elegido.pdf"));
}

TEST_F(ProposedFiles, OfAPreviewAreThoseOfItsPrintDialog) {
  QPrinter printer;
  printer.setDocName(QStringLiteral("Una tabla"));
  QPrintPreviewDialog preview(&printer);
  preview.show();
  std::string proposed;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, &preview, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    if (const auto* file = dialog->findChild<QLineEdit*>(QStringLiteral("filename"))) {
      proposed = file->text().toStdString();
    }
    dialog->reject();
  });
  user.start(10);
  const QString print = QCoreApplication::translate("QPrintPreviewDialog", "Print");
  for (QAction* action : preview.findChildren<QAction*>()) {
    if (action->text() == print) action->trigger();
  }
  EXPECT_EQ(proposed, documents("Una tabla.pdf"));
}

}  // namespace
}  // namespace desktop
