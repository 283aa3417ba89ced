#include "aftermath.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <vector>

#include "fault_rules.h"
#include "hosts/headless/wildcard.h"

namespace scenarios {
namespace {

using headless::matchesWildcard;

constexpr std::string_view kNoEngine =
    "msgbox 0 * \"La variable de tipo Object o la variable de bloque With no está establecida\" = ok";
constexpr int kAnyTab = -1;
constexpr int kTables = 0;

// What a handler does when there is no engine: exactly these lines, "?" before one that may be missing, "*" last for
// whatever else.
struct WithoutEngine {
  std::string_view script;
  int tabBefore;
  std::vector<std::string_view> lines;
};

const std::vector<WithoutEngine>& withoutEngine() {
  static const std::vector<std::string_view> query{"set txtEspere.Visible True", "set txtespere1.Visible True",
                                                   "set ProgressBar1.Visible True", "set ProgressBar1.Value 20",
                                                   kNoEngine};
  static const std::vector<WithoutEngine> rules{
      // From the tables on the engine is created anew; the other tabs cannot be left.
      {"> select Ficha Datos", kTables, {"set FichaConsultasDatos.Visible False", "*"}},
      {"> select Ficha Mapas", kTables, {"set FichaConsultasDatos.Visible False", "*"}},
      {"> select Ficha *", kAnyTab, {}},
      {"> select FichaAños *", kAnyTab, {"set Panel.Visible True"}},
      {"> select CmbProvincias *", kAnyTab, query},
      {"> select CmbZonas *", kAnyTab, query},
      {"> select CmbBuscar *",
       kAnyTab,
       {"set txtBuscar.Text *", "clear ListaResultado", kNoEngine, "clear ListaResultado"}},
      // A choice in the selector is remembered but opens nothing.
      {"> select CmbMarco *",
       kAnyTab,
       {"?set CmbUnidad.ListIndex 1", "?clear TreeView1", "set CmbUnidad.Enabled *", "clear TreeView1"}},
      {"> select Cmb*", kAnyTab, {"clear TreeView1"}},
      {"> type txtBuscar *",
       kAnyTab,
       {"set txtBuscar.Text \"\"", "?clear ListaResultado", "clear ListaResultado", "clear ListaResultado",
        "clear ListaResultado", kNoEngine, "*"}},
      {"> resize *", kAnyTab, {"set ShpFondo.Width *", "*"}},
      {"> mouseup OptProvincias", kAnyTab, {"?set OptZbs.Value False", "set OptProvincias.Value True"}},
      {"> click PDF*", kAnyTab, {"?dir *", "?shell *", "?findwindow *", "?msgbox *"}},
      {"> click LblSalir", kAnyTab, {"form frmPrincipal unload"}},
      // What needs no engine meets another state: no selector to close, an answer or a file left from before.
      {"> click Lbl*", kAnyTab, {"shell *", "findwindow *"}},
      {"> click ImgExportar", kAnyTab, {"savedialog *", "dir *", "msgbox *", "?copy *", "?error *"}},
      {"> click *", kAnyTab, {}},
      {"> close", kAnyTab, {"form frmPrincipal unload"}},
  };
  return rules;
}

// Where the next handler may first differ from the undisturbed one, "" for no more lines. Answers of the outside may
// always differ.
struct Difference {
  std::string_view script;
  std::string_view undisturbed;
  std::string_view disturbed;
};

constexpr std::array kDifferences{
    // The unit shown, or the object picked, was not remembered.
    Difference{"> select FichaAños *", "do set map layer 1 label default layer 2 label default",
               "set Panel.Visible False"},
    Difference{"> select FichaAños *", "do set map layer 1 label default layer 2 label default",
               "do set map layer 1 label default display global layer 2 label default display off"},
    Difference{"> select FichaAños *", "eval Tableinfo(1,1)*", "set Panel.Visible False"},
    // The number of layers is another, and with it the statement.
    Difference{"> select FichaAños *", "do set map layer 1 label default layer 2 label default*",
               "do set map layer 1 label default layer 2 label default*"},
    // The view was not turned, so that the option is still the other one.
    Difference{"> mouseup OptZbs", "set OptProvincias.Value False", "set OptZbs.Value True"},
    // The selector was not shown, or is there already.
    Difference{"> select *", "form frmTematicos load", "form frmTematicos show"},
    Difference{"> select *", "form frmTematicos show", "form frmTematicos load"},
    Difference{"> click LblSalir", "form frmTematicos unload", "form frmPrincipal unload"},
    // The tool in hand is the one of the tab before.
    Difference{"> mapclick *", "call *", "call *"},
    Difference{"> mapclick *", "call *", ""},
    // The selectors of the tables are not ready, and the engine is still there.
    Difference{"> select ComboTabla *", "set ComboTipo.Visible *", ""},
    Difference{"> close", "", "release #"},
    // The engine of a tab that could not be tidied up is let go of at the next one.
    Difference{"> select Ficha *", "set FichaConsultasDatos.Visible False", "release #"},
    // Another page is shown.
    Difference{"> click ImgExportar", "savedialog *", "savedialog *"},
    Difference{"> click ImgExportar", "copy *", "copy *"},
    // The selectors of the tables were not put back, so that none is chosen, or nothing is to be emptied.
    Difference{"> select Combo*", "navigate *", ""},
    Difference{"> type Combo*", "set Combo*", ""},
    // Another viewer was found, or none.
    Difference{"> click PDF*", "dir *", "msgbox 0 * \"Acrobat Reader no está instalado correctamente *"},
    Difference{"> click PDF*", "shell *", "shell *"},
};

// The beginnings of lines that hold an answer of the outside, or tell of its failure.
constexpr std::array kAnswers{std::string_view("eval "), std::string_view("dir "), std::string_view("findwindow "),
                              std::string_view("regopen "), std::string_view("regquery ")};

// Lines that lead nowhere by themselves are passed over in the search for the next handler.
constexpr std::array kPassive{std::string_view("> show "),        std::string_view("> tree"),
                              std::string_view("> answer "),      std::string_view("> save"),
                              std::string_view("> file "),        std::string_view("> nofile "),
                              std::string_view("> locationname ")};

bool beginsWithOneOf(const auto& words, const std::string& line) {
  return std::ranges::any_of(words, [&](std::string_view word) { return line.starts_with(word); });
}

// Without the running numbers of engines and of query layers.
std::string withoutNumbers(const std::string& line) {
  std::string result;
  bool inNumber = false;
  for (const char c : line) {
    inNumber = std::isdigit(static_cast<unsigned char>(c)) != 0 &&
               (inNumber || result.ends_with('#') || result.ends_with("Query"));
    if (!inNumber) result.push_back(c);
  }
  return result;
}

Lines withoutNumbers(Lines lines) {
  for (std::string& line : lines) line = withoutNumbers(line);
  return lines;
}

// What the transcript tells of the program's state.
struct State {
  int tab = kTables;
  int engines = 0;  // created so far
  bool hasEngine = false;

  void follow(const Block& block) {
    static constexpr std::array kTabs{std::string_view("Tablas"), std::string_view("Mapas"), std::string_view("Datos"),
                                      std::string_view("Veldoria")};
    for (std::size_t i = 0; i < block.lines.size(); ++i) {
      const std::string& line = block.lines[i];
      if (line.starts_with("set Ficha.Tab ")) tab = line.back() - '0';
      const bool failed = i + 1 < block.lines.size() && block.lines[i + 1].starts_with("error ");
      if (line.starts_with("create ") && !failed) {
        ++engines;
        hasEngine = true;
      }
      if (line == "release #" + std::to_string(engines)) hasEngine = false;
    }
    for (std::size_t i = 0; i < kTabs.size(); ++i) {
      if (block.script == "> select Ficha " + std::string(kTabs[i])) tab = static_cast<int>(i);
    }
  }
};

bool matchesSteps(const std::vector<std::string_view>& steps, const Lines& lines) {
  std::size_t at = 0;
  for (std::string_view step : steps) {
    if (step == "*") return true;
    const bool isOptional = step.starts_with("?");
    if (isOptional) step.remove_prefix(1);
    const bool isThere = at < lines.size() && matchesWildcard(step, lines[at]);
    if (isThere) ++at;
    if (!isThere && !isOptional) return false;
  }
  return at == lines.size();
}

std::string described(const Block& block, const std::string& what) {
  std::string text = what + "\n  " + block.script + "\n";
  for (const std::string& line : block.lines) text += "  " + line + "\n";
  return text;
}

std::string complaintWithoutEngine(const Block& block, const Block& undisturbed, int tab) {
  const auto rule = std::ranges::find_if(withoutEngine(), [&](const WithoutEngine& r) {
    return matchesWildcard(r.script, block.script) && (r.tabBefore == kAnyTab || r.tabBefore == tab);
  });
  // Handlers that need no engine do what they always do.
  if (rule == withoutEngine().end() || block.lines == undisturbed.lines) {
    return block.lines == undisturbed.lines ? "" : described(block, "no rule for this without an engine");
  }
  return matchesSteps(rule->lines, block.lines) ? "" : described(block, "not what is done without an engine");
}

// An answering line without its answer, which may be nothing.
std::string question(const std::string& line) {
  static constexpr std::string_view kNothing = " =·";
  return line.ends_with(kNothing) ? line.substr(0, line.size() - kNothing.size()) : line.substr(0, line.find(" = "));
}

std::string complaintWithEngine(const Block& block, const Block& undisturbed) {
  const Lines actual = withoutNumbers(block.lines);
  const Lines expected = withoutNumbers(undisturbed.lines);
  const auto [a, e] = std::ranges::mismatch(actual, expected);
  if (a == actual.end() && e == expected.end()) return "";
  const std::string now = a == actual.end() ? "" : *a;
  const std::string before = e == expected.end() ? "" : *e;
  if (now.starts_with("error ")) return "";
  if (beginsWithOneOf(kAnswers, now) && question(now) == question(before)) return "";
  const bool isKnown = std::ranges::any_of(kDifferences, [&](const Difference& d) {
    return matchesWildcard(d.script, block.script) && matchesWildcard(d.undisturbed, before) &&
           matchesWildcard(d.disturbed, now);
  });
  return isKnown ? "" : described(block, "undisturbed: " + before + "\n  now: " + now);
}

}  // namespace

std::string complaintAboutNext(const Lines& transcript, const Lines& undisturbed,
                               const std::set<std::string>& notDone) {
  const std::vector<Block> blocks = blocksOf(transcript);
  const std::vector<Block> before = blocksOf(undisturbed);
  State state;
  std::size_t at = 0;
  bool happened = false;
  for (; at < blocks.size() && !happened; ++at) {
    state.follow(blocks[at]);
    happened = std::ranges::any_of(blocks[at].lines, isFault);
  }
  while (at < blocks.size() && beginsWithOneOf(kPassive, blocks[at].script)) ++at;
  if (at >= blocks.size() || notDone.contains(blocks[at].script)) return "";
  if (at >= before.size()) return described(blocks[at], "the program should have ended");
  if (state.hasEngine) return complaintWithEngine(blocks[at], before[at]);
  return complaintWithoutEngine(blocks[at], before[at], state.tab);
}

}  // namespace scenarios
