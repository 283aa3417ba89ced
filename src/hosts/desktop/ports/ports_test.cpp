#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QFontMetrics>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include "hosts/desktop/ports/desktop_files.h"
#include "hosts/desktop/ports/desktop_registry.h"
#include "hosts/desktop/ports/qt_dialogs.h"
#include "hosts/desktop/ports/qt_messages.h"
#include "hosts/desktop/ports/qt_programs.h"
#include "hosts/desktop/test_failures.h"
#include "hosts/headless/headless_files.h"

namespace desktop {
namespace {

using testing::failureOf;
using Words = std::vector<std::string>;

struct FakeDesktop : DesktopPrograms {
  bool hasReader = true;
  bool opens = true;
  Words opened;

  [[nodiscard]] bool has(Stand stand) const override { return stand != Stand::pdfReader || hasReader; }
  bool open(const std::string& file) override {
    opened.push_back(file);
    return opens;
  }
};

const std::string kAppPaths = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

class DesktopPorts : public ::testing::Test {
 protected:
  // The install folder that the registry gives for a program, or "" when it has none.
  std::string folderOf(const std::string& executable) {
    const auto opened = registry.openKey(kAppPaths + executable, platform::kKeyQueryValue);
    if (opened.status != platform::kRegistrySuccess) return "";
    const auto size = registry.queryValue(opened.key, "Path", 0).size;
    const auto queried = registry.queryValue(opened.key, "Path", size);
    EXPECT_EQ(queried.type, platform::kRegistryText);
    EXPECT_EQ(queried.data.size(), size);
    registry.closeKey(opened.key);
    return {queried.data.begin(), queried.data.end() - 1};
  }

  FakeDesktop programs;
  headless::HeadlessFiles machine;
  DesktopFiles files{machine, programs};
  DesktopRegistry registry{programs};
  QtPrograms starts{programs};
  screen::ProgramCalls calls;
  motor::WidgetHandles handles;
  QtHost host{calls, handles};
  QtMessages messages{host};
  QtDialogs dialogs{host, machine};
};

TEST_F(DesktopPorts, TheEngineIsInstalledAndAReaderWhereTheDesktopHasOne) {
  EXPECT_EQ(files.lookUp(folderOf("Mapinfor.exe") + "\\mapinfor.exe"), "mapinfor.exe");
  EXPECT_EQ(files.lookUp(folderOf("ACRORD32.exe") + "\\ACRORD32.exe"), "ACRORD32.exe");
  programs.hasReader = false;
  EXPECT_EQ(folderOf("ACRORD32.exe"), "");
  EXPECT_EQ(files.lookUp("escritorio:\\ACRORD32.exe"), "");
  EXPECT_EQ(files.lookUp("escritorio:\\otro.exe"), "");
}

TEST_F(DesktopPorts, RegistryRefusesWhatItDoesNotHave) {
  EXPECT_EQ(registry.openKey("Software\\Mapinfor.exe", 1).status, platform::kRegistryNotFound);
  const auto opened = registry.openKey(kAppPaths + "MAPINFOR.EXE", 1);
  EXPECT_EQ(registry.queryValue(opened.key, "Otro", 0).status, platform::kRegistryNotFound);
  registry.closeKey(opened.key);
  EXPECT_EQ(registry.queryValue(opened.key, "Path", 0).status, platform::kRegistryInvalidHandle);
  EXPECT_EQ(registry.queryValue(0, "Path", 0).status, platform::kRegistryInvalidHandle);
}

TEST_F(DesktopPorts, ProgramsOpenTheirDocumentOnTheDesktop) {
  starts.start("\"C:\\Archivos de Programa\\Internet Explorer\\IEXPLORE.EXE\" \"/estudio\\Archivos\\Creditos.html\"");
  starts.start("\"escritorio:\\ACRORD32.exe\" \"/estudio\\Archivos\\mortalidad_1999.pdf\"");
  EXPECT_EQ(programs.opened, (Words{"/estudio/Archivos/Creditos.html", "/estudio/Archivos/mortalidad_1999.pdf"}));
}

TEST_F(DesktopPorts, UnknownProgramsAreNotThere) {
  EXPECT_EQ(failureOf([&] { starts.start("\"C:\\otro.exe\" \"a.html\""); }), failures::kFileNotFound);
  EXPECT_EQ(failureOf([&] { starts.start("\"escritorio:\\mapinfor.exe\" \"a.wor\""); }), failures::kFileNotFound);
  EXPECT_EQ(failureOf([&] { starts.start(""); }), failures::kFileNotFound);
  programs.opens = false;
  EXPECT_EQ(failureOf([&] { starts.start("\"C:\\IEXPLORE.EXE\" \"a.html\""); }), failures::kFileNotFound);
}

TEST(CommandWords, QuotesHoldBlanks) {
  EXPECT_EQ(commandWords("\"a b\" \"c d\""), (Words{"a b", "c d"}));
  EXPECT_EQ(commandWords("a  b"), (Words{"a", "b"}));
  EXPECT_EQ(commandWords(" \"\" x"), (Words{"", "x"}));
  EXPECT_EQ(commandWords(""), Words{});
}

struct MessageCase {
  int style;
  QMessageBox::Icon icon;
  QStringList buttons;
};

TEST_F(DesktopPorts, MessagesHaveTheirIconAndSpanishButtons) {
  const MessageCase cases[] = {
      {platform::kOkOnly, QMessageBox::NoIcon, {"Aceptar"}},
      {platform::kInformation, QMessageBox::Information, {"Aceptar"}},
      {platform::kExclamation, QMessageBox::Warning, {"Aceptar"}},
      {platform::kCritical, QMessageBox::Critical, {"Aceptar"}},
      {platform::kYesNo + platform::kQuestion, QMessageBox::Question, {"&Sí", "&No"}},
  };
  for (const MessageCase& each : cases) {
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->text(), "¿<b>Sigue</b>?");
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->windowTitle(), "Mortalidad en Veldoria");
      EXPECT_EQ(box->icon(), each.icon);
      QStringList buttons;
      for (const QAbstractButton* button : box->buttons()) buttons += button->text();
      EXPECT_EQ(buttons, each.buttons);
      box->buttons().constLast()->click();
    });
    const auto answer = messages.show("¿<b>Sigue</b>?", each.style, "Mortalidad en Veldoria");
    EXPECT_EQ(answer, each.buttons.size() == 1 ? platform::Button::ok : platform::Button::no);
  }
}

TEST_F(DesktopPorts, AMessageHasRoomForItsTitleAndKeepsItsSize) {
  const std::string title = "Un título más largo que lo que el mensaje dice";
  QFont font = QApplication::font("QMdiSubWindowTitleBar");
  font.setBold(true);
  for (const int style : {platform::kOkOnly, platform::kYesNo + platform::kQuestion}) {
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_GE(box->width(), QFontMetrics(font).horizontalAdvance(box->windowTitle()) + 100)
          << "and what lies beside it";
      EXPECT_EQ(box->minimumSize(), box->maximumSize());
      EXPECT_FALSE(box->windowFlags().testAnyFlags(Qt::WindowMinMaxButtonsHint));
      box->buttons().constLast()->click();
    });
    messages.show("Sí", style, title);
  }
}

}  // namespace
}  // namespace desktop
