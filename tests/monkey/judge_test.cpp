#include "judge.h"

#include <gtest/gtest.h>

#include <functional>

#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/frm_tematicos.h"
#include "life.h"
#include "monkey.h"
#include "scenario.h"

// The rules can tell right from wrong: the program is broken on purpose, and the next action is complained about.
namespace {

using atlas::Atlas;

struct Breach {
  const char* before;  // lines that lead there
  std::function<void(Atlas&)> deed;
  const char* next;
  const char* complaint;
};

std::shared_ptr<platform::MapEngine> kept;  // beyond its time

const std::vector<Breach>& breaches() {
  static const auto main = [](Atlas& program) -> atlas::FrmPrincipal& { return program.frmPrincipal(); };
  static const std::vector<Breach> all{
      {"select Ficha Datos", [](Atlas& p) { kept = p.motormapa; }, "select Ficha Veldoria",
       "engines: 2 are alive, the program holds 1"},
      {"tick", [](Atlas& p) { main(p).txtEspere.setVisible(true); }, "minimize", "notices: txtEspere is seen"},
      {"tick", [](Atlas& p) { main(p).ProgressBar1.setValue(55); }, "minimize",
       "notices: the progress stands between two steps"},
      {"select Ficha Datos", [](Atlas& p) { main(p).Internet.setVisible(true); }, "minimize", "mode: Internet is seen"},
      {"select Ficha Tablas", [](Atlas& p) { main(p).PictureMapa.setVisible(true); }, "minimize",
       "mode: PictureMapa is seen"},
      {"select Ficha Datos", [](Atlas& p) { main(p).FichaAños.setVisible(false); }, "minimize",
       "mode: FichaAños is not seen"},
      {"tick", [](Atlas& p) { main(p).FichaConsultasDatos.setVisible(true); }, "minimize",
       "consultations: their visibility is not what was written"},
      {"tick",
       [](Atlas& p) { p.ports.windows.setZOrder(main(p).hWnd(), platform::ZOrder::topmost, platform::kNoMove); },
       "minimize", "topmost: the main window has come to the top"},
      {"select Ficha Mapas", [](Atlas& p) { p.frmTematicos().CmbUnidad.setEnabled(false); }, "minimize",
       "selector: the unit can be chosen in a province, or not in the region"},
      {"tick", [](Atlas& p) { main(p).TreeView1.add(nullptr, "1999"); }, "minimize",
       "tree: root 1 is not bold and navy"},
      {"tick",
       [](Atlas& p) {
         forms::Node* node = &main(p).TreeView1.add(nullptr, "1999", {.bold = true, .color = 0x800000});
         for (int i = 0; i < 4; ++i) node = &main(p).TreeView1.add(node, "x");
       },
       "minimize", "tree: node 1/1/1/1/1 lies too deep"},
      {"tick", [](Atlas& p) { main(p).txtespere1.setText("x"); }, "minimize", "texts: a wait notice reads otherwise"},
      {"tick", [](Atlas& p) { main(p).lblComando.setCaption("Comando actual: Otro"); }, "minimize",
       "texts: lblComando reads Comando actual: Otro"},
      {"tick", [](Atlas& p) { main(p).CmbZonas.addItem(""); }, "minimize", "texts: CmbZonas has an empty item"},
      {"select Ficha Tablas", [](Atlas& p) { main(p).TablasListas = false; }, "minimize",
       "tables: they do not answer any more"},
      {"select Ficha Datos", [](Atlas& p) { p.Do("Map From Provincias1999"); }, "minimize",
       "engines: 2 map windows are open, the engine knows 2"},
      {"select Ficha Datos", [](Atlas& p) { main(p).FichaAños.Click.add([&p] { p.MostrarComando("Zoom+"); }); },
       "select FichaAños 2000", "opened map: another tool is chosen"},
      {"select Ficha Datos", [](Atlas& p) { main(p).FichaAños.Click.add([&p] { p.callbackmapa.reset(); }); },
       "select FichaAños 2000", "opened map: it is not there"},
      {"select Ficha Datos",
       [](Atlas& p) { main(p).Ficha.Click.add([&p, engine = p.motormapa](int) { p.motormapa = engine; }); },
       "select Ficha Tablas", "opened map: it is still there beside the tables"},
      {"select Ficha Datos", [](Atlas& p) { p.unit.Tabla = "Provincias"; }, "minimize",
       "current unit: one of its fields is empty"},
  };
  return all;
}

TEST(Judge, NoticesWhatIsWrong) {
  const scenarios::Study study;
  for (const Breach& breach : breaches()) {
    monkey::Life life(study.folder());
    for (const char* line : {"start", "tick", breach.before}) {
      ASSERT_TRUE(life.act(line)) << line;
      ASSERT_EQ(life.complaint(), "") << line;
    }
    breach.deed(*life.program());
    ASSERT_TRUE(life.act(breach.next));
    EXPECT_EQ(life.complaint(), breach.complaint) << breach.before;
    kept.reset();
  }
}

TEST(Judge, IsContentWithTheScenarios) {
  const scenarios::Study study;
  for (const std::string& name : scenarios::names()) {
    if (std::filesystem::exists(scenarios::file(name, ".engine"))) continue;
    if (std::filesystem::exists(scenarios::file(name, ".app"))) continue;
    const monkey::Script script = scenarios::linesOf(scenarios::contentsOf(scenarios::file(name, ".replay")));
    EXPECT_EQ(monkey::complaintAbout(script, study.folder()), "") << name;
  }
}

}  // namespace
