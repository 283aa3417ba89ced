#include "judge.h"

#include <algorithm>
#include <array>

#include "atlas/callbacks/mi_callback.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/frm_tematicos.h"
#include "atlas/titles.h"

namespace monkey {
namespace {

constexpr int kTables = 0;
constexpr int kMaps = 1;
constexpr int kData = 2;
constexpr int kStatistics = 3;
constexpr int kDeepestNode = 4;  // unit, sex, type, indicator
constexpr forms::Color kNavy = 0x800000;
constexpr std::ptrdiff_t kMostCommas = 7;  // of eight fields

using Lines = std::vector<std::string>;

template <class Form>
const Form* loaded(const atlas::Atlas& program) {
  for (const forms::Form* form : program.forms()) {
    const auto* found = dynamic_cast<const Form*>(form);
    if (found != nullptr && found->isLoaded()) return found;
  }
  return nullptr;
}

// What was written last to a logical property, if anything.
std::optional<bool> lastWritten(const Lines& effects, const std::string& property) {
  const std::string beginning = "set " + property + " ";
  const auto last = std::find_if(effects.rbegin(), effects.rend(),
                                 [&](const std::string& line) { return line.starts_with(beginning); });
  if (last == effects.rend()) return std::nullopt;
  return last->ends_with("True");
}

// Whether a handler may have ended before its end: a call failed, an object was missing, or the engine's message was
// not as it must be.
bool tellsOfTrouble(const std::string& line) {
  if (line.starts_with("error ")) return true;
  if (line.starts_with("msgbox 0 ")) {
    return line.find("\"La variable de tipo Object ") != std::string::npos ||
           line.find("\"Callback incorrecto ") != std::string::npos;
  }
  return line.starts_with("call ") && std::ranges::count(line, ',') > kMostCommas;
}

// Whether the selector can show the remembered choice, or there is none.
bool isWhole(const std::array<std::string, 4>& choice) {
  return choice[atlas::kIndicator].empty() || std::ranges::count(choice, "") == 0;
}

std::string named(const forms::Control& control, const char* what) { return control.name() + " " + what; }

std::string wrongNode(const forms::Node& node, const forms::Node* parent, int depth) {
  if (node.parent() != parent) return "node " + node.path() + " has another parent";
  if (node.text().empty()) return "node " + node.path() + " has no text";
  if (depth > kDeepestNode) return "node " + node.path() + " lies too deep";
  if (parent == nullptr && (!node.style().bold || node.style().color != kNavy)) {
    return "root " + node.path() + " is not bold and navy";
  }
  for (const auto& child : node.children()) {
    if (auto wrong = wrongNode(*child, &node, depth + 1); !wrong.empty()) return wrong;
  }
  return "";
}

}  // namespace

const std::vector<Judge::Rule>& Judge::rules() {
  static const std::vector<Rule> all{
      {"notices", &Judge::notices},   {"mode", &Judge::mode},         {"consultations", &Judge::consultations},
      {"topmost", &Judge::topmost},   {"selector", &Judge::selector}, {"tree", &Judge::tree},
      {"options", &Judge::options},   {"texts", &Judge::texts},       {"tables", &Judge::tables},
      {"current unit", &Judge::unit}, {"opened map", &Judge::opened},
  };
  return all;
}

std::string Judge::complaintAfter(const Scene& scene) {
  const bool hasEngine = scene.program.motormapa != nullptr;
  trouble_ = !hadEngine_ || !hasEngine || std::ranges::any_of(scene.effects, tellsOfTrouble);
  std::string complaint;
  if (auto wrong = engines(scene); !wrong.empty()) complaint = "engines: " + wrong;
  if (const Main* main = loaded<Main>(scene.program)) {
    for (const Rule& rule : rules()) {
      const std::string wrong = (this->*rule.check)(scene, *main);
      if (complaint.empty() && !wrong.empty()) complaint = std::string(rule.name) + ": " + wrong;
    }
    tab_ = main->Ficha.tab();
  }
  hadEngine_ = hasEngine;
  return complaint;
}

std::string Judge::engines(const Scene& scene) const {
  const int held = scene.program.motormapa == nullptr ? 0 : 1;
  if (scene.sessions != held) {
    return std::to_string(scene.sessions) + " are alive, the program holds " + std::to_string(held);
  }
  if (scene.mapWindows != scene.mapWindowsOfSession || scene.mapWindows > 1) {
    return std::to_string(scene.mapWindows) + " map windows are open, the engine knows " +
           std::to_string(scene.mapWindowsOfSession);
  }
  return "";
}

// A map that was opened to the end is there, with its tool in the user's hand. The tables have none.
std::string Judge::opened(const Scene& scene, const Main& main) {
  const auto has = [&](const char* line) { return std::ranges::find(scene.effects, line) != scene.effects.end(); };
  if (has("set ProgressBar1.Value 90") && !trouble_) {
    if (scene.mapWindows != 1 || scene.program.callbackmapa == nullptr) return "it is not there";
    if (main.Ficha.tab() != kTables && main.lblComando.caption() != "Comando actual: Información") {
      return "another tool is chosen";
    }
  }
  const bool hasTables = has("set Internet.Visible True");
  if (hasTables && scene.program.motormapa != nullptr) return "it is still there beside the tables";
  return "";
}

// Notices go when their handler is done; they stay where it ended early, until another handler hides them.
std::string Judge::notices(const Scene& scene, const Main& main) {
  std::string wrong;
  for (const forms::Control* notice : std::initializer_list<const forms::Control*>{&main.txtEspere, &main.txtespere1,
                                                                                   &main.ProgressBar1, &main.Panel}) {
    const auto before = std::ranges::find(visibleNotices_, notice->name());
    const auto written = lastWritten(scene.effects, notice->name() + ".Visible");
    const bool expected = written.value_or(before != visibleNotices_.end());
    if (notice->visible() != expected) wrong = named(*notice, expected ? "is not seen" : "is seen");
    if (written == true && !trouble_) wrong = named(*notice, "stays");
    if (before != visibleNotices_.end()) visibleNotices_.erase(before);
    if (notice->visible()) visibleNotices_.push_back(notice->name());
  }
  const float value = main.ProgressBar1.value();
  if (value != static_cast<float>(static_cast<int>(value) / 10 * 10)) wrong = "the progress stands between two steps";
  return wrong;
}

// The main area shows what belongs to one tab. That is the tab selected, unless the map that was left could not be
// tidied up.
std::string Judge::mode(const Scene& scene, const Main& main) {
  if (lastWritten(scene.effects, "Internet.Visible")) shownTab_ = main.Ficha.tab();
  struct Seen {
    const forms::Control& control;
    bool expected;
  };
  for (const Seen& each :
       {Seen{main.Internet, shownTab_ == kTables}, Seen{main.PictureMapa, shownTab_ != kTables},
        Seen{main.Image1, shownTab_ != kTables}, Seen{main.FichaAños, shownTab_ == kMaps || shownTab_ == kData},
        Seen{main.lblVeldoria, shownTab_ == kStatistics}}) {
    if (each.control.visible() != each.expected) return named(each.control, each.expected ? "is not seen" : "is seen");
  }
  const bool changes = main.Ficha.tab() != tab_;
  if (shownTab_ != main.Ficha.tab() && changes && !trouble_) return "the main area is not the selected tab's";
  return "";
}

std::string Judge::consultations(const Scene& scene, const Main& main) {
  const auto written = lastWritten(scene.effects, "FichaConsultasDatos.Visible");
  consultationsVisible_ = written.value_or(consultationsVisible_);
  if (main.FichaConsultasDatos.visible() != consultationsVisible_) return "their visibility is not what was written";
  if (consultationsVisible_ && shownTab_ != kData) return "they are seen beside another map";
  if (!consultationsVisible_ && shownTab_ == kData && written && !trouble_) return "they are not seen";
  return "";
}

std::string Judge::topmost(const Scene& scene, const Main& main) {
  const auto last = std::find_if(scene.effects.rbegin(), scene.effects.rend(),
                                 [](const std::string& line) { return line.starts_with("zorder frmPrincipal "); });
  const bool isRaised = last != scene.effects.rend() && last->starts_with("zorder frmPrincipal topmost");
  const bool before = isTopmost_;
  isTopmost_ = scene.windows.isTopmost(scene.windows.handleOf(main));
  if (isTopmost_ && isRaised && !trouble_) return "the main window stays on top";
  if (isTopmost_ && !before && !isRaised && !trouble_) return "the main window has come to the top";
  return "";
}

std::string Judge::selector(const Scene& scene, const Main& main) {
  const auto* selector = loaded<atlas::FrmTematicos>(scene.program);
  const bool isSeen = selector != nullptr && selector->visible();
  if (isSeen != (scene.windows.find(atlas::kSelectorTitle) != 0)) return "it is not on the desktop as it says";
  const bool hasOpened = std::ranges::find(scene.effects, "set ProgressBar1.Value 90") != scene.effects.end();
  if (hasOpened && isSeen != (main.Ficha.tab() == kMaps)) {
    return isSeen ? "it is seen beside another map" : "it is not seen beside a thematic map";
  }
  const bool hasLoaded = std::ranges::find(scene.effects, "form frmTematicos load") != scene.effects.end();
  if (hasLoaded) isChoiceWhole_ = isWhole(scene.program.SeleccionTematica);
  // A choice that cannot be shown again leaves the window as it was made, and deaf.
  if (selector == nullptr || !isChoiceWhole_) return "";
  const std::string& frame = selector->CmbMarco.text();
  const bool isByUnit = frame.empty() || frame == "Veldoria";
  if (selector->CmbUnidad.enabled() != isByUnit) return "the unit can be chosen in a province, or not in the region";
  if (!isByUnit && selector->CmbUnidad.listIndex() != 1) return "a province is not by zones";
  return "";
}

std::string Judge::tree(const Scene& /*scene*/, const Main& main) {
  for (const auto& root : main.TreeView1.roots()) {
    if (auto wrong = wrongNode(*root, nullptr, 1); !wrong.empty()) return wrong;
  }
  return "";
}

std::string Judge::options(const Scene& /*scene*/, const Main& main) {
  return main.OptProvincias.value() && main.OptZbs.value() ? "both views are chosen" : "";
}

std::string Judge::texts(const Scene& /*scene*/, const Main& main) {
  static constexpr const char* kWait = "Espere por favor...";
  if (main.txtEspere.text() != kWait || main.txtespere1.text() != kWait) return "a wait notice reads otherwise";
  static const std::array<std::string, 8> kTools{"Zoom+",
                                                 "Zoom +",
                                                 "Zoom-",
                                                 "Desplazamiento",
                                                 "Información",
                                                 "Etiquetado",
                                                 "Medir Distancias",
                                                 "Arrastrar ventana"};
  const std::string& command = main.lblComando.caption();
  const std::string beginning = "Comando actual: ";
  if (!command.empty() && command != beginning &&
      (!command.starts_with(beginning) ||
       std::ranges::find(kTools, command.substr(beginning.size())) == kTools.end())) {
    return "lblComando reads " + command;
  }
  const std::string& zones = main.Lblzonas.caption();
  if (zones != "Zonas básicas" && !zones.starts_with("Zonas Basicas de ")) return "Lblzonas reads " + zones;
  if (main.caption() != atlas::kProgramTitle) return "the window's title has changed";
  for (const forms::ItemList* list : std::initializer_list<const forms::ItemList*>{
           &main.CmbProvincias, &main.CmbZonas, &main.CmbBuscar, &main.ListaResultado}) {
    if (std::ranges::count(list->items(), "") != 0) return named(*list, "has an empty item");
    if (list->listIndex() >= static_cast<int>(list->items().size())) return named(*list, "has no such item");
  }
  return "";
}

std::string Judge::tables(const Scene& scene, const Main& main) {
  struct Box {
    const forms::EditableCombo& combo;
    const char* placeholder;
  };
  for (const Box& box : {Box{main.ComboTabla, ""}, Box{main.ComboTipo, "Tipo"}, Box{main.ComboProvincia, "Provincia"},
                         Box{main.ComboSexo, "Sexo"}, Box{main.ComboAño, "Año"}}) {
    const std::string& text = box.combo.text();
    const bool isItem = std::ranges::find(box.combo.items(), text) != box.combo.items().end();
    if (!isItem && !text.empty() && text != box.placeholder) return named(box.combo, "takes what is typed");
  }
  if (tablesReady_ && !main.TablasListas) return "they do not answer any more";
  tablesReady_ = main.TablasListas;
  const bool hasNavigated =
      std::ranges::any_of(scene.effects, [](const std::string& line) { return line.starts_with("navigate "); });
  if (hasNavigated && !trouble_ && main.Internet.path() != scene.program.archivotabla) {
    return "another page is shown than is remembered";
  }
  return "";
}

// Both fields of the current unit, or none; a tool that fails between the two leaves one.
std::string Judge::unit(const Scene& scene, const Main& /*main*/) {
  const atlas::CurrentUnit& current = scene.program.unit;
  const bool isHalf = current.Tabla.empty() != current.Nombre.empty();
  const bool isNew = isHalf && !isUnitHalf_;
  isUnitHalf_ = isHalf;
  if (isNew && !trouble_) return "one of its fields is empty";
  if (!current.Tabla.empty() && current.Tabla != "Provincias" && current.Tabla != "ZonasBasicas") {
    return "its table is " + current.Tabla;
  }
  return "";
}

}  // namespace monkey
