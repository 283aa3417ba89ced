#include "fault_rules.h"

#include <algorithm>
#include <array>
#include <ranges>
#include <string_view>
#include <vector>

#include "hosts/headless/wildcard.h"
#include "text/failure.h"

namespace scenarios {
namespace {

using headless::matchesWildcard;

enum class Step {
  opening,   // a workspace is being opened
  handling,  // anything else
};
enum class Reaction { silent, reported };

// What follows a failure, by the script's line that was being run, the call that failed and, where that is not enough,
// a line that came before it since. The first rule that fits applies.
struct Rule {
  std::string_view script;
  Step step;
  std::string_view call;
  std::string_view before;  // "" for none; "^" first: it must be the line just before the call
  Reaction reaction;
  std::vector<std::string_view> mayFollow;
  std::string_view mustFollow;  // "a|b": one of them
};

const std::vector<Rule>& rules() {
  // The main window comes up whatever happens to its map, and the splash goes.
  static const std::vector<std::string_view> comingUp{"form frmPrincipal show", "set *",
                                                      "eval windowid(1)*",      "eval WindowID(1)*",
                                                      "do set window *",        "form frmInicio unload"};
  // What the main window looks like without a map; an engine that was not found ends the program instead.
  static const std::vector<std::string_view> comingUpWithoutMap{"form frmPrincipal show", "set *", "findwindow *",
                                                                "eval windowid(1)*", "form frmInicio unload"};
  static const std::vector<std::string_view> engineNotFound{"regquery Path 0 0 = 6",
                                                            "msgbox 48 \"\" \"MapInfo Proviewer no esta Instalado *",
                                                            "form frmInicio unload", "form frmPrincipal unload", "end"};
  static const std::vector<std::string_view> anything{"*"};
  static const std::vector<std::string_view> nothing;
  static const std::vector<Rule> all = [] {
    std::vector<Rule> table;
    // Taking the earlier query off the map is silent, and the query goes on.
    for (const std::string_view query :
         {"> select CmbProvincias *", "> select CmbZonas *", "> select ListaResultado *"}) {
      for (const std::string_view call : {"eval frontwindow()", "eval LayerInfo(*", "do set map layer 1 label default·",
                                          "do Remove map layer 1 Interactive"}) {
        table.push_back({query, Step::handling, call, "", Reaction::silent, anything, "set txtespere1.Visible False"});
      }
      table.push_back({query, Step::handling, "do Set map zoom entire", "^do Remove map layer 1 Interactive",
                       Reaction::silent, anything, "set txtespere1.Visible False"});
    }
    for (const std::string_view start : {"> tick", "> doubleclick frmInicio"}) {
      const std::vector<Rule> checks{
          // A PDF viewer that is not found is no matter for the start; a map engine that is not found ends it.
          {start, Step::handling, "regopen *Mapinfor.exe *", "", Reaction::silent, engineNotFound, "end"},
          {start, Step::handling, "regopen *", "", Reaction::silent, anything, "form frmInicio unload|end"},
          {start, Step::handling, "regquery *", "regopen *ACRORD32.exe *", Reaction::silent, anything,
           "form frmInicio unload|end"},
          {start, Step::handling, "regquery *", "", Reaction::silent, engineNotFound, "end"},
          {start, Step::handling, "dir *", "", Reaction::silent, comingUpWithoutMap, "form frmInicio unload"},
      };
      table.insert(table.end(), checks.begin(), checks.end());
    }
    const std::vector<Rule> others{
        {"> tick", Step::opening, "*", "", Reaction::silent, comingUp, "form frmInicio unload"},
        {"> tick", Step::handling, "*", "", Reaction::silent, comingUp, "form frmInicio unload"},
        {"> doubleclick frmInicio", Step::opening, "*", "", Reaction::silent, comingUp, "form frmInicio unload"},
        {"> doubleclick frmInicio", Step::handling, "*", "", Reaction::silent, comingUp, "form frmInicio unload"},
        // Filling the consultation lists has a trap of its own: the tab comes up all the same.
        {"> select Ficha *", Step::opening, "*", "", Reaction::silent, nothing, ""},
        {"> select Ficha *", Step::handling, "eval frontwindow()", "", Reaction::silent, nothing, ""},
        {"> select Ficha *",
         Step::handling,
         "*",
         "eval frontwindow() = *",
         Reaction::silent,
         {"set FichaConsultasDatos.Visible True", "set Opt*"},
         "set OptZbs.Value True"},
        {"> select Ficha *", Step::handling, "*", "", Reaction::silent, nothing, ""},
        // With the engine gone, whatever the year tab would still ask of it fails in silence, but for the thematic
        // object.
        {"> select FichaAños *",
         Step::opening,
         "*",
         "",
         Reaction::silent,
         {"set Panel.Visible False", "msgbox 0 * \"La variable de tipo Object *"},
         ""},
        {"> select FichaAños *",
         Step::handling,
         "eval Tableinfo(1,1)",
         "",
         Reaction::reported,
         {"set Panel.Visible False"},
         "set Panel.Visible False"},
        {"> select FichaAños *",
         Step::handling,
         "*",
         "eval Tableinfo(1,1)*",
         Reaction::reported,
         {"set Panel.Visible False"},
         "set Panel.Visible False"},
        {"> select FichaAños *", Step::handling, "*", "", Reaction::silent, nothing, ""},
        {"> select CmbProvincias *", Step::handling, "*", "", Reaction::reported, nothing, ""},
        {"> select CmbZonas *", Step::handling, "*", "", Reaction::reported, nothing, ""},
        {"> select ListaResultado *", Step::handling, "*", "", Reaction::reported, nothing, ""},
        // The search that the prompt starts is reported by itself; the list is emptied all the same.
        {"> select CmbBuscar *",
         Step::handling,
         "*",
         "",
         Reaction::reported,
         {"clear ListaResultado"},
         "clear ListaResultado"},
        // Each further character searches again.
        {"> type txtBuscar *",
         Step::handling,
         "*",
         "",
         Reaction::reported,
         {"clear ListaResultado", "add ListaResultado *", "do Select nombre *", "do fetch *", "eval *"},
         ""},
        // A choice of the selector ends where it fails; the province's choice goes on after the unit's.
        {"> select CmbMarco *", Step::opening, "*", "", Reaction::silent, anything, "zorder frmTematicos topmost 19"},
        {"> select CmbMarco *", Step::handling, "*", "", Reaction::silent, anything, ""},
        {"> select Cmb*",
         Step::opening,
         "*",
         "",
         Reaction::silent,
         {"zorder frmTematicos topmost 19"},
         "zorder frmTematicos topmost 19"},
        {"> select Cmb*", Step::handling, "*", "", Reaction::silent, nothing, ""},
        {"> click BtnTematico",
         Step::opening,
         "*",
         "",
         Reaction::silent,
         {"zorder frmTematicos topmost 19"},
         "zorder frmTematicos topmost 19"},
        {"> click BtnTematico", Step::handling, "*", "", Reaction::silent, nothing, ""},
        // The window closes all the same; what the program still holds goes with its last window.
        {"> close",
         Step::handling,
         "*",
         "",
         Reaction::silent,
         {"form frmPrincipal unload", "release #*"},
         "form frmPrincipal unload"},
        {"> click LblSalir",
         Step::handling,
         "*",
         "",
         Reaction::silent,
         {"form frmPrincipal unload", "release #*"},
         "form frmPrincipal unload"},
        // Toolbars, view buttons, the layout and the methods that the engine calls back.
        {"> click *", Step::handling, "*", "", Reaction::silent, nothing, ""},
        {"> mouseup *", Step::handling, "*", "", Reaction::silent, nothing, ""},
        {"> resize *", Step::handling, "*", "", Reaction::silent, nothing, ""},
        {"> restore", Step::handling, "*", "", Reaction::silent, nothing, ""},
        {"> mapclick *", Step::handling, "*", "", Reaction::silent, nothing, ""},
        {"> callback *", Step::handling, "*", "", Reaction::silent, nothing, ""},
    };
    table.insert(table.end(), others.begin(), others.end());
    return table;
  }();
  return all;
}

// How a workspace that cannot be opened is given up; the engine, if there was one, is released.
constexpr std::array kGivingUp{
    std::string_view("msgbox 48 \"Mortalidad en Veldoria\" \"No se pudo abrir el entorno de trabajo o su ruta es "
                     "incorrecta.\" = ok"),
    std::string_view("?release #*"),
    std::string_view("zorder frmPrincipal notopmost 83"),
    std::string_view("set txtEspere.Visible False"),
    std::string_view("set txtespere1.Visible False"),
    std::string_view("set ProgressBar1.Visible False"),
};

// A failure and what stands around it, from the script's line to the next one.
struct Incident {
  std::string script;
  Lines before;  // the failing call is the last
  Lines after;

  [[nodiscard]] const std::string& call() const { return before.back(); }
  [[nodiscard]] Step step() const {
    const auto begun = std::ranges::find(before.rbegin(), before.rend(), "set ProgressBar1.Value 10");
    const bool done = std::find(before.rbegin(), begun, "set ProgressBar1.Visible False") != begun;
    return begun != before.rend() && !done ? Step::opening : Step::handling;
  }
};

bool isScriptLine(const std::string& line) { return line.starts_with("> "); }

// The failure that was let happen; false when there is none.
bool findIncident(const Lines& transcript, Incident& incident) {
  const auto at = std::ranges::find_if(transcript, isFault);
  if (at == transcript.end()) return false;
  const auto script = std::find_if(std::make_reverse_iterator(at), transcript.rend(), isScriptLine);
  incident.script = *script;
  incident.before.assign(script.base(), at->starts_with("error ") ? at : at + 1);
  incident.after.assign(at + 1, std::find_if(at + 1, transcript.end(), isScriptLine));
  return true;
}

bool fits(const Rule& rule, const Incident& incident) {
  if (!matchesWildcard(rule.script, incident.script) || rule.step != incident.step() ||
      !matchesWildcard(rule.call, incident.call())) {
    return false;
  }
  if (rule.before.empty()) return true;
  const Lines earlier(incident.before.begin(), incident.before.end() - 1);
  if (rule.before.starts_with("^")) return !earlier.empty() && matchesWildcard(rule.before.substr(1), earlier.back());
  return std::ranges::any_of(earlier, [&](const std::string& line) { return matchesWildcard(rule.before, line); });
}

// Takes the lines of giving up a workspace from the front of `rest`.
bool takeGivingUp(Lines& rest) {
  std::size_t at = 0;
  for (std::string_view pattern : kGivingUp) {
    const bool isOptional = pattern.starts_with("?");
    if (isOptional) pattern.remove_prefix(1);
    const bool isThere = at < rest.size() && matchesWildcard(pattern, rest[at]);
    if (isThere) ++at;
    if (!isThere && !isOptional) return false;
  }
  rest.erase(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(at));
  return true;
}

bool takeReport(Lines& rest) {
  const std::string report = std::string("msgbox 0 \"Mortalidad en Veldoria 1999-2002\" \"") + kFaultText + "\" = ok";
  if (rest.empty() || rest.front() != report) return false;
  rest.erase(rest.begin());
  return true;
}

// `wanted` is a line, or several with "|" between them.
bool holdsOneOf(const Lines& lines, std::string_view wanted) {
  for (std::size_t at = 0; at <= wanted.size();) {
    const std::size_t end = std::min(wanted.find('|', at), wanted.size());
    if (std::ranges::find(lines, wanted.substr(at, end - at)) != lines.end()) return true;
    at = end + 1;
  }
  return false;
}

std::string described(const Incident& incident, const std::string& what) {
  std::string text = what + "\n  " + incident.script + "\n  " + incident.call() + "\n  (fault)\n";
  for (const std::string& line : incident.after) text += "  " + line + "\n";
  return text;
}

}  // namespace

bool isFault(const std::string& line) {
  static const std::string status = " = " + std::to_string(kMachineFault);
  if (line.starts_with("reg")) return line.ends_with(status);
  return line.starts_with("error ") && line.ends_with(kFaultText);
}

std::string complaintAbout(const Lines& transcript) {
  Incident incident;
  if (!findIncident(transcript, incident)) return "the fault did not happen";
  const auto rule = std::ranges::find_if(rules(), [&](const Rule& r) { return fits(r, incident); });
  if (rule == rules().end()) return described(incident, "no rule for this");
  Lines rest = incident.after;
  if (rule->step == Step::opening && !takeGivingUp(rest)) return described(incident, "the workspace was not given up");
  if (rule->reaction == Reaction::reported && !takeReport(rest)) return described(incident, "not reported");
  for (const std::string& line : rest) {
    const bool mayFollow =
        std::ranges::any_of(rule->mayFollow, [&](std::string_view pattern) { return matchesWildcard(pattern, line); });
    if (!mayFollow) return described(incident, "this was not to follow: " + line);
  }
  if (!rule->mustFollow.empty() && !holdsOneOf(rest, rule->mustFollow)) {
    return described(incident, "this did not follow: " + std::string(rule->mustFollow));
  }
  return "";
}

}  // namespace scenarios
