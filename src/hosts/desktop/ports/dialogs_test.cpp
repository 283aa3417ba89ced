#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <optional>

#include "hosts/desktop/pages/help_window.h"
#include "hosts/desktop/pages/page_browser.h"
#include "hosts/desktop/ports/qt_dialogs.h"
#include "hosts/desktop/test_failures.h"
#include "hosts/desktop/test_files.h"
#include "hosts/desktop/user_hands.h"
#include "hosts/headless/headless_files.h"

namespace desktop {
namespace {

using testing::failureOf;
using testing::writeFile;

class Dialogs : public ::testing::Test {
 protected:
  // Asks for a name, and does with the dialog what a user does.
  std::string save(const std::string& name, const std::function<void(QFileDialog&)>& user) {
    bool isSeen = false;
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      isSeen = dialog != nullptr;
      if (isSeen) user(*dialog);
    });
    const std::string chosen = dialogs.save("Guardar como...", "*.html|HTML", name);
    EXPECT_TRUE(isSeen);
    return chosen;
  }
  [[nodiscard]] static QLineEdit& nameIn(QFileDialog& dialog) {
    return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  }
  [[nodiscard]] static QList<pages::HelpWindow*> helpWindows() {
    QList<pages::HelpWindow*> windows;
    for (QWidget* each : QApplication::topLevelWidgets()) {
      if (auto* help = dynamic_cast<pages::HelpWindow*>(each)) windows += help;
    }
    return windows;
  }

  QTemporaryDir folder;
  headless::HeadlessFiles files;
  screen::ProgramCalls calls;
  motor::WidgetHandles handles;
  QtHost host{calls, handles, folder.path().toStdString()};
  std::optional<QtDialogs> dialogs_{std::in_place, host, files};
  QtDialogs& dialogs = *dialogs_;
};

TEST_F(Dialogs, SavingAsksForANameWithTheProposedOne) {
  const QString target = folder.filePath("copia.html");
  const std::string chosen = save("Indicadores, 1999/2000", [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Guardar como...");
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.nameFilters(), QStringList("HTML (*.html)"));
    EXPECT_EQ(nameIn(dialog).text(), "Indicadores, 1999-2000");
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    nameIn(dialog).setText(target);
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  EXPECT_EQ(chosen, target.toStdString());
}

TEST_F(Dialogs, ANameThatExistsIsTakenAsItIs) {
  const QString target = folder.filePath("existe.html");
  writeFile(target, "antes");
  EXPECT_EQ(save("a",
                 [&](QFileDialog& dialog) {
                   nameIn(dialog).setText(target);
                   QMetaObject::invokeMethod(&dialog, "accept");
                 }),
            target.toStdString());
}

TEST_F(Dialogs, CancellingLeavesTheProposedName) {
  EXPECT_EQ(save("Indicadores, 1999", [](QFileDialog& dialog) { dialog.reject(); }), "Indicadores, 1999");
}

TEST_F(Dialogs, HelpShowsThePageInAWindowOfTheProgram) {
  const QString page = folder.filePath("Ayuda/Ayuda.html");
  const std::string older = folder.path().toStdString() + "\\Ayuda\\AYUDA.hlp";
  EXPECT_EQ(failureOf([&] { dialogs.help(older, 3); }), failures::kFileNotFound);
  EXPECT_TRUE(helpWindows().isEmpty());
  writeFile(page, "<title>Ayuda</title>hola");
  dialogs.help(older, 3);
  hands::settle();
  ASSERT_EQ(helpWindows().size(), 1);
  EXPECT_EQ(helpWindows().first()->page().pageName(), "Ayuda");
  EXPECT_TRUE(helpWindows().first()->isVisible());
  helpWindows().first()->close();
  dialogs.help(older, 3);
  ASSERT_EQ(helpWindows().size(), 1);
  EXPECT_TRUE(helpWindows().first()->isVisible());
  QFile::remove(page);
  EXPECT_EQ(failureOf([&] { dialogs.help(older, 3); }), failures::kFileNotFound);
  dialogs_.reset();
  EXPECT_TRUE(helpWindows().isEmpty());
}

TEST(ToolkitFilters, AreTurnedRoundWhereTheyStandSo) {
  EXPECT_EQ(toolkitFilter("*.html|HTML"), "HTML (*.html)");
  EXPECT_EQ(toolkitFilter("Web|*.html|*.txt|Texto"), "Web (*.html);;Texto (*.txt)");
  EXPECT_EQ(toolkitFilter("Todos|*"), "Todos (*)");
}

}  // namespace
}  // namespace desktop
