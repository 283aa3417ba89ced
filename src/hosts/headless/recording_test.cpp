#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/tree_view.h"
#include "hosts/headless/fake_programs.h"
#include "hosts/headless/fake_registry.h"
#include "hosts/headless/fake_windows.h"
#include "hosts/headless/headless_files.h"
#include "hosts/headless/headless_listener.h"
#include "hosts/headless/recording_listener.h"
#include "hosts/headless/recording_ports.h"
#include "hosts/headless/scripted_dialogs.h"
#include "hosts/headless/scripted_engine.h"
#include "hosts/headless/scripted_messages.h"

namespace {

using Lines = std::vector<std::string>;

class Callback : public platform::CallbackObject {
 public:
  Lines calls;
  [[nodiscard]] std::string className() const override { return "MICallback"; }
  bool invoke(const std::string& method, const std::string& message) override {
    calls.push_back(method + " " + message);
    return true;
  }
};

class OpenForm : public forms::Form {
 public:
  explicit OpenForm(forms::Listener& listener) : Form(listener, "frmPrueba") {}
  using Form::endDefinition;
  forms::TreeView tree{*this, "Arbol"};
};

class Recording : public ::testing::Test {
 protected:
  Lines lines;
  headless::Transcript transcript{[this](const std::string& line) { lines.push_back(line); }, "C:\\Estudio"};
  headless::Faults faults;
  headless::Recorder recorder{transcript, faults};
  headless::ScriptedEngines engines{"eval WindowID(1) => 42\neval WindowInfo(42, 12) => 900001\n"};
  headless::FakeWindows windows;
  headless::FakeRegistry registry;
  headless::HeadlessFiles files;
  headless::FakePrograms programs;
  headless::ScriptedMessages messages;
  headless::ScriptedDialogs dialogs;
  headless::HeadlessListener plainListener{windows};
  headless::RecordingListener listener{plainListener, recorder};
  headless::RecordingPorts recording{
      {engines.engines(), windows, registry, files, programs, messages, dialogs, "C:\\Estudio"}, recorder};
  platform::Ports ports = recording.ports();

  Lines take() { return std::exchange(lines, {}); }

  template <class Deed>
  static int failureNumber(Deed deed) {
    try {
      deed();
    } catch (const Failure& failure) {
      return failure.number();
    }
    return 0;
  }
};

TEST_F(Recording, AnEngineFromItsCreationToItsRelease) {
  auto callback = std::make_shared<Callback>();
  {
    const auto engine = ports.engines.create("MapInfo.runtime");
    EXPECT_EQ(engine->eval("WindowID(1)").text(), "42");
    EXPECT_EQ(engine->eval("WindowInfo(42, 12)").text(), "900001");
    engine->run("set window 42Max");
    engine->setCallback(callback);
    EXPECT_TRUE(recording.engines().current()->callBack("Info", "MI:1,2"));
    ports.windows.setParent(900001, 7);
  }
  EXPECT_EQ(recording.engines().current(), nullptr);
  EXPECT_EQ(callback->calls, (Lines{"Info MI:1,2"}));
  EXPECT_EQ(take(),
            (Lines{"create MapInfo.runtime #1", "eval WindowID(1) = <map>", "eval WindowInfo(<map>, 12) = <hwnd:map>",
                   "do set window <map>Max", "callback-set MICallback", "call Info MI:1,2",
                   "parent <hwnd:map> -> <hwnd:7>", "release #1"}));
}

TEST_F(Recording, FailuresAreWrittenAfterTheirLines) {
  EXPECT_EQ(failureNumber([&] { (void)ports.engines.create("Otro"); }), 429);
  const auto engine = ports.engines.create("MapInfo.runtime");
  faults.failNext("do Select*", Failure(-2147352567, "mal"));
  faults.failNext("eval x", Failure(-2147352567, "peor"));
  faults.failNext("callback-set *", Failure(5, "no"));
  EXPECT_EQ(failureNumber([&] { engine->run("Select * from x"); }), -2147352567);
  EXPECT_EQ(failureNumber([&] { (void)engine->eval("x"); }), -2147352567);
  EXPECT_EQ(failureNumber([&] { engine->setCallback(std::make_shared<Callback>()); }), 5);
  EXPECT_FALSE(recording.engines().current()->callBack("Info", "MI:"));
  EXPECT_EQ(take(), (Lines{"create Otro #1", "error 429 El componente ActiveX no puede crear el objeto",
                           "create MapInfo.runtime #1", "do Select * from x", "error -2147352567 mal", "eval x",
                           "error -2147352567 peor", "callback-set MICallback", "error 5 no"}));
}

TEST_F(Recording, EachPortHasItsLines) {
  registry.addText("Software\\A", "Path", "C:\\A");
  files.pretendFile("C:\\A\\a.exe");
  const auto key = ports.registry.openKey("Software\\A", 1).key;
  (void)ports.registry.openKey("Software\\B", 1);
  (void)ports.registry.queryValue(key, "Path", 0);
  (void)ports.registry.queryValue(key, "Nada", 0);
  (void)ports.files.lookUp("C:\\A\\A.EXE");
  EXPECT_EQ(failureNumber([&] { ports.files.copy("C:\\nada", "C:\\algo"); }), 53);
  ports.programs.start("\"C:\\A\\a.exe\" \"C:\\Estudio\\x.html\"");
  dialogs.prepareName("z");
  (void)ports.dialogs.save("t", "f", "n");
  ports.dialogs.help("C:\\Estudio\\Ayuda.hlp", 3);
  ports.messages.show("¿\"Sí\"?", platform::kYesNo, "Título");
  ports.messages.show("Ya", platform::kOkOnly, "");
  ports.programs.end();
  EXPECT_TRUE(programs.ended());
  EXPECT_EQ(take(), (Lines{"regopen Software\\A 1 = 0", "regopen Software\\B 1 = 2", "regquery Path 1 5 = 0",
                           "regquery Nada 0 0 = 2", "dir C:\\A\\A.EXE = a.exe", "copy C:\\nada -> C:\\algo",
                           "error 53 No se ha encontrado el archivo", "shell \"C:\\A\\a.exe\" \"<app>\\x.html\"",
                           "savedialog \"t\" \"f\" \"n\" = z", "help <app>\\Ayuda.hlp 3",
                           "msgbox 4 \"Título\" \"¿\"\"Sí\"\"?\" = yes", "msgbox 0 \"\" \"Ya\" = ok", "end"}));
}

TEST_F(Recording, RegistryFaultsAreStatuses) {
  registry.addText("A", "Path", "C:\\A");
  faults.failNext("regopen A*", Failure(5, ""));
  EXPECT_EQ(ports.registry.openKey("A", 1).status, 5);
  const auto key = ports.registry.openKey("A", 1).key;
  faults.failNext("regquery Path*", Failure(234, ""));
  EXPECT_EQ(ports.registry.queryValue(key, "Path", 0).status, 234);
  EXPECT_EQ(take(), (Lines{"regopen A 1 = 5", "regopen A 1 = 0", "regquery Path 0 0 = 234"}));
}

TEST_F(Recording, WindowsAreFoundByTitleAndClosed) {
  windows.addWindow("MapInfo");
  const auto found = ports.windows.find("MapInfo");
  ports.windows.close(found);
  ports.windows.close(ports.windows.find("MapInfo"));
  EXPECT_EQ(take(),
            (Lines{"findwindow \"MapInfo\" = found", "closewindow \"MapInfo\"", "findwindow \"MapInfo\" = none"}));
}

TEST_F(Recording, FormsAndTheirControls) {
  OpenForm form(listener);
  form.setCaption("Prueba");
  form.endDefinition();
  form.show();
  EXPECT_EQ(ports.windows.find("Prueba"), form.hWnd());
  ports.windows.setZOrder(form.hWnd(), platform::ZOrder::topmost, 19);
  ports.windows.setZOrder(form.hWnd(), platform::ZOrder::notTopmost, 83);
  form.setTop(15);
  forms::Node& root = form.tree.add(nullptr, "1999", {.bold = true, .color = 8388608});
  form.tree.add(&root, "Ávila", {.bold = false, .color = {}});
  root.setExpanded(true);
  form.tree.clear();
  form.hide();
  EXPECT_EQ(ports.windows.find("Prueba"), 0);
  form.unload();
  EXPECT_EQ(take(),
            (Lines{"form frmPrueba load", "form frmPrueba show", "findwindow \"Prueba\" = found",
                   "zorder frmPrueba topmost 19", "zorder frmPrueba notopmost 83", "set frmPrueba.Top 15",
                   "node 1 \"1999\" bold color=8388608", "node 1/1 \"Ávila\"", "nodeset 1 Expanded True", "clear Arbol",
                   "form frmPrueba hide", "findwindow \"Prueba\" = none", "form frmPrueba unload"}));
}

TEST_F(Recording, AWriteMayFailToo) {
  OpenForm form(listener);
  form.endDefinition();
  faults.failNext("set Arbol.Visible*", Failure(380, "no"));
  EXPECT_EQ(failureNumber([&] { form.tree.setVisible(true); }), 380);
  EXPECT_EQ(take(), (Lines{"set Arbol.Visible True", "error 380 no"}));
}

}  // namespace
