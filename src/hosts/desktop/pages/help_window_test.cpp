#include "hosts/desktop/pages/help_window.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <optional>
#include <stdexcept>

#include "hosts/desktop/pages/page_browser.h"
#include "hosts/desktop/test_files.h"
#include "hosts/desktop/user_hands.h"

namespace desktop::pages {
namespace {

class HelpWindows : public ::testing::Test {
 protected:
  void SetUp() override {
    write("Ayuda.html", "<title>Ayuda</title><a href='tema.html'>tema</a>");
    write("tema.html", "<title>Tema</title>");
    help.emplace(path("Ayuda.html"), StudyFolder(folder.path()), nullptr);
    help->showContents();
    hands::settle();
  }
  void write(const char* name, const char* text) { testing::writeFile(path(name), text); }
  [[nodiscard]] QString path(const char* name) const { return folder.filePath(QLatin1String("Ayuda/") + name); }
  [[nodiscard]] QToolButton& button(const char* text) {
    for (auto* each : help->findChildren<QToolButton*>()) {
      if (each->text() == QString::fromUtf8(text)) return *each;
    }
    throw std::runtime_error(text);
  }
  [[nodiscard]] std::string page() const { return help->page().pageName().toStdString(); }

  QTemporaryDir folder;
  std::optional<HelpWindow> help;
};

TEST_F(HelpWindows, ShowTheirPageAndHoldNothingUp) {
  EXPECT_TRUE(help->isVisible());
  EXPECT_TRUE(help->isWindow());
  EXPECT_FALSE(help->isModal());
  EXPECT_EQ(help->windowTitle(), "Ayuda de Mortalidad en Veldoria");
  EXPECT_EQ(page(), "Ayuda");
  EXPECT_EQ(help->page().accessibleName(), "Página de ayuda");
}

TEST_F(HelpWindows, GoBackForwardAndHome) {
  EXPECT_FALSE(button("Atrás").isEnabled());
  help->page().setSource(QUrl(QStringLiteral("tema.html")));
  EXPECT_EQ(page(), "Tema");
  button("Atrás").click();
  EXPECT_EQ(page(), "Ayuda");
  button("Adelante").click();
  EXPECT_EQ(page(), "Tema");
  button("Inicio").click();
  EXPECT_EQ(page(), "Ayuda");
  EXPECT_FALSE(button("Atrás").isEnabled());
}

TEST_F(HelpWindows, OfferToSearchAndToPrintAPageThatIsThere) {
  EXPECT_TRUE(button("Buscar...").isEnabled());
  QFile::remove(path("Ayuda.html"));
  help->showContents();
  EXPECT_FALSE(button("Buscar...").isEnabled());
  EXPECT_FALSE(button("Imprimir...").isEnabled());
  write("Ayuda.html", "<title>Ayuda</title>");
  help->showContents();
  EXPECT_TRUE(button("Imprimir...").isEnabled());
}

TEST_F(HelpWindows, EscapeClosesTheRowToFindWordsThenTheWindow) {
  button("Buscar...").click();
  EXPECT_TRUE(help->page().isFinding());
  QTest::keyClick(&help->page(), Qt::Key_Escape);
  EXPECT_FALSE(help->page().isFinding());
  EXPECT_TRUE(help->isVisible());
  QTest::keyClick(&help->page(), Qt::Key_Escape);
  EXPECT_FALSE(help->isVisible());
  help->page().setSource(QUrl(QStringLiteral("tema.html")));
  help->showContents();
  EXPECT_TRUE(help->isVisible());
  EXPECT_EQ(page(), "Ayuda");
}

}  // namespace
}  // namespace desktop::pages
