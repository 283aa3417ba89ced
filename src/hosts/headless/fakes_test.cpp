#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "forms/form.h"
#include "forms/web_browser.h"
#include "hosts/headless/fake_registry.h"
#include "hosts/headless/fake_windows.h"
#include "hosts/headless/headless_files.h"
#include "hosts/headless/headless_listener.h"
#include "hosts/headless/scripted_dialogs.h"
#include "hosts/headless/scripted_engine.h"
#include "hosts/headless/scripted_messages.h"
#include "text/failure.h"

namespace {

namespace fs = std::filesystem;
using platform::Button;

TEST(HeadlessFiles, TheDiskAndWhatAScriptSaysOfIt) {
  const fs::path folder = fs::temp_directory_path() / "veldoria_headless_files";
  fs::remove_all(folder);
  fs::create_directories(folder / "Tablas" / "1999");
  std::ofstream(folder / "Tablas" / "Uno.wor") << "uno";
  const std::string base = folder.string();

  headless::HeadlessFiles files;
  EXPECT_EQ(files.lookUp(base + "\\TABLAS\\uno.WOR"), "Uno.wor");
  EXPECT_EQ(files.lookUp(base + "\\Tablas"), "") << "a folder is no file";
  EXPECT_EQ(files.lookUp(base + "\\Tablas\\dos.wor"), "");
  EXPECT_EQ(files.folders(base + "\\tablas"), (std::vector<std::string>{"1999"}));
  EXPECT_TRUE(files.folders(base + "\\nada").empty());

  files.copy(base + "\\tablas\\UNO.wor", base + "\\Tablas\\copia.wor");
  EXPECT_EQ(files.lookUp(base + "\\Tablas\\copia.wor"), "copia.wor");
  const auto failureOf = [&](const std::string& from, const std::string& to) {
    try {
      files.copy(base + from, base + to);
    } catch (const Failure& failure) {
      return std::to_string(failure.number()) + " " + failure.description();
    }
    return std::string();
  };
  EXPECT_EQ(failureOf("\\nada", "\\Tablas\\otra"), "53 No se ha encontrado el archivo");
  EXPECT_EQ(failureOf("\\Tablas\\1999", "\\Tablas\\otra"), "53 No se ha encontrado el archivo")
      << "a folder is no file";
  EXPECT_EQ(failureOf("\\Tablas\\Uno.wor", "\\nada\\otra"), "75 Error de acceso a la ruta o al archivo");

  files.pretendNoFile(base + "\\TABLAS\\Uno.wor");
  EXPECT_EQ(files.lookUp(base + "\\Tablas\\Uno.wor"), "");
  EXPECT_THROW(files.copy(base + "\\Tablas\\Uno.wor", base + "\\Tablas\\otra"), Failure);
  files.pretendFile("C:\\Programas\\mapinfor.exe");
  EXPECT_EQ(files.lookUp("c:\\PROGRAMAS\\MAPINFOR.EXE"), "mapinfor.exe");
  fs::remove_all(folder);
}

TEST(FakeRegistry, ReadsItsFile) {
  headless::FakeRegistry registry;
  registry.read(
      "# what is installed\n"
      "Software\\A|Path|sz|C:\\ñ\\\n"
      "Software\\A|Raw|expand_sz|%x%\n"
      "Software\\A|Number|dword|258\n"
      "Software\\A|Hex|dword|0xff\n"
      "Software\\A|Bytes|binary|00fF\n"
      "Software\\B|Path|status|5\n");
  const auto opened = registry.openKey("SOFTWARE\\a", platform::kKeyQueryValue);
  ASSERT_EQ(opened.status, 0);
  struct Case {
    const char* name;
    std::uint32_t type;
    std::vector<std::uint8_t> data;
  };
  for (const Case& c : {Case{"path", 1, {'C', ':', '\\', 0xC3, 0xB1, '\\', 0}}, Case{"Raw", 2, {'%', 'x', '%', 0}},
                        Case{"Number", 4, {2, 1, 0, 0}}, Case{"Hex", 4, {255, 0, 0, 0}}, Case{"Bytes", 3, {0, 255}}}) {
    const auto sized = registry.queryValue(opened.key, c.name, 0);
    EXPECT_EQ(sized.status, 0) << c.name;
    EXPECT_EQ(sized.type, c.type) << c.name;
    EXPECT_EQ(sized.size, c.data.size()) << c.name;
    EXPECT_TRUE(sized.data.empty()) << c.name;
    EXPECT_EQ(registry.queryValue(opened.key, c.name, 100).data, c.data) << c.name;
  }
  const auto cut = registry.queryValue(opened.key, "Path", 2);
  EXPECT_EQ(cut.status, 234);
  EXPECT_EQ(cut.data.size(), 2U);
  EXPECT_EQ(registry.queryValue(opened.key, "Nada", 0).status, platform::kRegistryNotFound);
  EXPECT_EQ(registry.openKey("Software\\C", 1).status, platform::kRegistryNotFound);
  EXPECT_EQ(registry.queryValue(registry.openKey("Software\\B", 1).key, "Path", 0).status, 5);
  EXPECT_EQ(registry.openKeys(), 2U);
  registry.closeKey(opened.key);
  EXPECT_EQ(registry.openKeys(), 1U);
  EXPECT_EQ(registry.queryValue(opened.key, "Path", 0).status, platform::kRegistryInvalidHandle);
  EXPECT_EQ(registry.queryValue(0, "Path", 0).status, platform::kRegistryInvalidHandle);
}

TEST(FakeRegistry, SaysWhichLineIsWrong) {
  for (const char* line : {"a|b|c", "a|b|word|1", "a|b|dword|x", "a|b|binary|0", "a|b|binary|0g", "a|b|status|"}) {
    headless::FakeRegistry registry;
    try {
      registry.read("\n" + std::string(line));
      FAIL() << line;
    } catch (const std::invalid_argument& problem) {
      EXPECT_TRUE(std::string(problem.what()).starts_with("line 2: ")) << problem.what();
    }
  }
}

TEST(ScriptedMessages, PreparedAnswersThenTheUsualOnes) {
  headless::ScriptedMessages messages;
  messages.prepare(Button::no);
  EXPECT_EQ(messages.show("", platform::kYesNo | platform::kQuestion, ""), Button::no);
  EXPECT_EQ(messages.show("", platform::kYesNo | platform::kQuestion, ""), Button::yes);
  EXPECT_EQ(messages.show("", platform::kExclamation, ""), Button::ok);
}

TEST(ScriptedDialogs, CancellingGivesTheNameBack) {
  headless::ScriptedDialogs dialogs;
  dialogs.prepareName("a.html");
  dialogs.prepareCancel();
  EXPECT_EQ(dialogs.save("", "", "n"), "a.html");
  EXPECT_EQ(dialogs.save("", "", "n"), "n");
  EXPECT_EQ(dialogs.save("", "", "m"), "m");
}

TEST(FakeWindows, OrderAndParents) {
  headless::FakeWindows windows;
  const auto window = windows.addWindow("Otra");
  EXPECT_EQ(windows.find("Otra"), window);
  EXPECT_EQ(windows.find("otra"), 0) << "titles are matched exactly";
  EXPECT_FALSE(windows.isTopmost(window));
  windows.setZOrder(window, platform::ZOrder::topmost, 19);
  EXPECT_TRUE(windows.isTopmost(window));
  windows.setZOrder(window, platform::ZOrder::notTopmost, 19);
  EXPECT_FALSE(windows.isTopmost(window));
  EXPECT_EQ(windows.parentOf(5), 0);
  windows.setParent(5, window);
  EXPECT_EQ(windows.parentOf(5), window);
}

class Page : public forms::Form {
 public:
  explicit Page(forms::Listener& listener) : Form(listener, "frm") { endDefinition(); }
  forms::WebBrowser browser{*this, "Internet"};
};

TEST(HeadlessListener, ThePageIsNamedAfterItsFileUnlessToldOtherwise) {
  headless::FakeWindows windows;
  headless::HeadlessListener listener(windows);
  Page form(listener);
  form.browser.navigate("C:\\Tablas\\1999 - Hombres.html");
  EXPECT_EQ(form.browser.locationName(), "1999 - Hombres.html");
  listener.setLocationName("Defunciones");
  EXPECT_EQ(form.browser.locationName(), "Defunciones");
  EXPECT_NE(form.hWnd(), form.browser.hWnd());
  EXPECT_EQ(form.hWnd(), form.hWnd());
}

class Sink : public platform::CallbackObject {
 public:
  std::string last;
  [[nodiscard]] std::string className() const override { return "Sink"; }
  bool invoke(const std::string& method, const std::string& message) override {
    last = method + " " + message;
    return true;
  }
};

TEST(ScriptedEngine, AnswersFromItsFile) {
  headless::ScriptedEngines engines(
      "# a map\n"
      "once eval EOT(*) => F\n"
      "eval eot(*) => T\n"
      "eval WindowID(1) => 42\n"
      "eval vacio =>\n");
  const auto engine = engines.create("mapinfo.RUNTIME");
  EXPECT_EQ(engine->eval("EOT(\"Selection\")").text(), "F");
  EXPECT_EQ(engines.create("MapInfo.runtime")->eval("EOT(\"Selection\")").text(), "T");
  EXPECT_EQ(engine->eval("windowid(1)").text(), "42");
  EXPECT_EQ(engine->eval("vacio").text(), "");
  EXPECT_EQ(engine->eval("algo").text(), "");
  EXPECT_NO_THROW(engine->run("cualquier cosa"));
  EXPECT_THROW((void)engines.create("Otro"), Failure);
  EXPECT_THROW(headless::ScriptedEngines("eval x\n"), std::invalid_argument);
  EXPECT_THROW(headless::ScriptedEngines("do x => y\n"), std::invalid_argument);
}

TEST(ScriptedEngine, AClickCallsTheToolChosenLast) {
  headless::ScriptedEngines engines("");
  EXPECT_FALSE(engines.clickMap("1", "2"));
  const auto engine = engines.create("MapInfo.runtime");
  const auto sink = std::make_shared<Sink>();
  engine->setCallback(sink);
  engine->run("Create Buttonpad \"Callback\" As Toolbutton ID 2001 DrawMode 34 Cursor 138 Calling OLE \"Info\"");
  engine->run("Alter buttonpad \"Callback\" add Toolbutton ID 2003 DrawMode 34 Cursor 138 Calling OLE \"InfoDatos\"");
  EXPECT_TRUE(engines.clickMap("1", "2"));
  EXPECT_EQ(sink->last, "") << "no tool was chosen";
  engine->run("run menu command ID 2003");
  engine->run("run menu command 112");
  engines.clickMap("-3", "41.5");
  EXPECT_EQ(sink->last, "InfoDatos MI:-3,41.5,F,F,,,2003,");
  sink->last.clear();
  engine->run("run menu command 1702");
  engines.clickMap("-3", "41.5");
  EXPECT_EQ(sink->last, "") << "the grabber calls nobody";
}

}  // namespace
