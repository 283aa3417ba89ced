#include "fault_rules.h"

#include <algorithm>
#include <array>
#include <ranges>
#include <string_view>

#include "hosts/headless/wildcard.h"
#include "text/failure.h"

namespace scenarios {
namespace {

using headless::matchesWildcard;

enum class Step {
  opening,   // a workspace is being opened
  givingUp,  // one that could not be opened is being given up
  handling,  // anything else
};
enum class Reaction { silent, reported };

// What follows a failure, by the script's line that was being run, the call that failed and, where that is not enough,
// a line that came before it since. Lines are told by patterns, "a|b" by either. The first rule that fits applies.
struct Rule {
  std::string_view script;
  Step step = Step::handling;
  std::string_view call = "*";
  std::string_view before = {};  // "" for none; "^" first: it must be the line just before the call
  Reaction reaction = Reaction::silent;
  std::string_view mayFollow = {};
  std::string_view mustFollow = {};  // one of them, which may follow then
};

constexpr std::string_view kQuery = "> select CmbProvincias *|> select CmbZonas *|> select ListaResultado *";
constexpr std::string_view kStart = "> tick|> doubleclick frmInicio";
// The main window comes up whatever happens to its map, and the splash goes.
constexpr std::string_view kComingUp =
    "form frmPrincipal show|set *|eval windowid(1)*|eval WindowID(1)*|do set window *";
// What the main window looks like without a map; an engine that was not found ends the program instead.
constexpr std::string_view kComingUpWithoutMap = "form frmPrincipal show|set *|findwindow *|eval windowid(1)*";
constexpr std::string_view kEngineNotFound =
    "regquery Path 0 0 = 6|msgbox 48 \"\" \"MapInfo Proviewer no esta Instalado *|form frmInicio unload|"
    "form frmPrincipal unload";
constexpr std::string_view kWindowCall = "zorder *|findwindow *|closewindow *|parent *";
constexpr std::string_view kBox = "msgbox *";
constexpr std::string_view kSelectorUp = "zorder frmTematicos topmost 19";

// Further characters search again, whatever became of the search before.
constexpr std::string_view kFurtherSearches =
    "clear ListaResultado|add ListaResultado *|do Select nombre *|do fetch *|eval *|msgbox 0 *|error *";

constexpr Rule kRules[] = {
    // A workspace whose giving up fails is left as it is: the failure is the caller's, whose trap ends it in silence.
    {.script = kStart, .step = Step::givingUp, .mayFollow = kComingUp, .mustFollow = "form frmInicio unload"},
    {.script = "> select CmbMarco *", .step = Step::givingUp, .mayFollow = "*"},
    {.script = "*", .step = Step::givingUp},
    // When the desktop refuses a window's place the engine is kept, and the caller goes on with it.
    {.script = kStart,
     .step = Step::opening,
     .call = kWindowCall,
     .mayFollow = "*",
     .mustFollow = "form frmInicio unload"},
    {.script = "> select Ficha *", .step = Step::opening, .call = "zorder frmPrincipal topmost *"},  // no engine yet
    {.script = "> select Ficha *",
     .step = Step::opening,
     .call = kWindowCall,
     .mayFollow = "*",
     .mustFollow = "eval frontwindow()*"},
    {.script = "> select FichaAños *", .step = Step::opening, .call = kWindowCall, .mayFollow = "*"},
    // A box that is not shown ends its handler, also that of a handler whose trap shows the failure.
    {.script = kStart, .call = kBox, .mayFollow = kComingUpWithoutMap, .mustFollow = "form frmInicio unload"},
    {.script = "> select CmbBuscar *", .call = kBox, .mustFollow = "clear ListaResultado"},
    {.script = "> select FichaAños *", .call = "msgbox 0 *", .mustFollow = "set Panel.Visible False"},
    {.script = "> type txtBuscar *|> edit txtBuscar *", .call = kBox, .mayFollow = kFurtherSearches},
    {.script = "> select CmbMarco *", .call = kBox, .mayFollow = "*"},
    {.script = "*", .call = "msgbox *|savedialog *|help *"},
    // Taking the earlier query off the map is silent, and the query goes on.
    {.script = kQuery,
     .call = "eval frontwindow()|eval LayerInfo(*|do set map layer 1 label default·|do Remove map layer 1 Interactive",
     .mayFollow = "*",
     .mustFollow = "set txtespere1.Visible False"},
    {.script = kQuery,
     .call = "do Set map zoom entire",
     .before = "^do Remove map layer 1 Interactive",
     .mayFollow = "*",
     .mustFollow = "set txtespere1.Visible False"},
    {.script = kQuery, .reaction = Reaction::reported},
    // A PDF viewer that is not found is no matter for the start; a map engine that is not found ends it.
    {.script = kStart, .call = "regopen *Mapinfor.exe *", .mayFollow = kEngineNotFound, .mustFollow = "end"},
    {.script = kStart, .call = "regopen *", .mayFollow = "*", .mustFollow = "form frmInicio unload|end"},
    {.script = kStart,
     .call = "regquery *",
     .before = "regopen *ACRORD32.exe *",
     .mayFollow = "*",
     .mustFollow = "form frmInicio unload|end"},
    {.script = kStart, .call = "regquery *", .mayFollow = kEngineNotFound, .mustFollow = "end"},
    {.script = kStart, .call = "dir *", .mayFollow = kComingUpWithoutMap, .mustFollow = "form frmInicio unload"},
    {.script = kStart, .step = Step::opening, .mayFollow = kComingUp, .mustFollow = "form frmInicio unload"},
    {.script = kStart, .mayFollow = kComingUp, .mustFollow = "form frmInicio unload"},
    // Filling the consultation lists has a trap of its own: the tab comes up all the same.
    {.script = "> select Ficha *", .step = Step::opening},
    {.script = "> select Ficha *", .call = "eval frontwindow()"},
    {.script = "> select Ficha *",
     .before = "eval frontwindow() = *",
     .mayFollow = "set FichaConsultasDatos.Visible True|set Opt*",
     .mustFollow = "set OptZbs.Value True"},
    {.script = "> select Ficha *"},
    // With the engine gone, whatever the year tab would still ask of it fails in silence, but for the thematic object.
    {.script = "> select FichaAños *",
     .step = Step::opening,
     .mayFollow = "set Panel.Visible False|msgbox 0 * \"La variable de tipo Object *"},
    {.script = "> select FichaAños *",
     .call = "eval Tableinfo(1,1)",
     .reaction = Reaction::reported,
     .mustFollow = "set Panel.Visible False"},
    {.script = "> select FichaAños *",
     .before = "eval Tableinfo(1,1)*",
     .reaction = Reaction::reported,
     .mustFollow = "set Panel.Visible False"},
    {.script = "> select FichaAños *"},
    // The search that the prompt starts is reported by itself; the list is emptied all the same.
    {.script = "> select CmbBuscar *", .reaction = Reaction::reported, .mustFollow = "clear ListaResultado"},
    // Each further character searches again.
    {.script = "> type txtBuscar *|> edit txtBuscar *", .reaction = Reaction::reported, .mayFollow = kFurtherSearches},
    // A choice of the selector ends where it fails; the province's choice goes on after the unit's.
    {.script = "> select CmbMarco *", .step = Step::opening, .mayFollow = "*", .mustFollow = kSelectorUp},
    {.script = "> select CmbMarco *", .mayFollow = "*"},
    {.script = "> select Cmb*|> click BtnTematico", .step = Step::opening, .mustFollow = kSelectorUp},
    {.script = "> select Cmb*|> click BtnTematico"},
    // The window closes all the same; what the program still holds goes with its last window.
    {.script = "> close|> click LblSalir", .mayFollow = "release #*", .mustFollow = "form frmPrincipal unload"},
    // Toolbars, view buttons, the layout and the methods that the engine calls back.
    {.script = "> click *|> mouseup *|> resize *|> restore|> mapclick *|> callback *"},
};

// How a workspace that cannot be opened is given up: a message by the failure's number, the engine let go of where it
// was the engine's failure, and the window put back as it was.
constexpr std::string_view kEngineRefused =
    "msgbox 48 \"Mortalidad en Veldoria\" \"No se pudo abrir el entorno de trabajo o su ruta es incorrecta.\" = ok";
constexpr std::string_view kOtherRefused =
    "msgbox 0 \"Mortalidad en Veldoria 1999-2002\" \"Error al cargar el mapa : *\" = ok";
constexpr std::array kPutBack{
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
  bool isEngines = false;  // the engine's failure

  [[nodiscard]] const std::string& call() const { return before.back(); }
  [[nodiscard]] Step step() const;
};

// The message may be the failing call, and then it has no answer.
bool isGivingUp(const std::string& line) {
  const auto begins = [&](std::string_view message) {
    return line.starts_with(message.substr(0, std::min(message.find('*'), message.rfind("\" = ok"))));
  };
  return begins(kEngineRefused) || begins(kOtherRefused);
}

Step Incident::step() const {
  const auto begun = std::ranges::find(before.rbegin(), before.rend(), "set ProgressBar1.Value 10");
  const bool done = std::find(before.rbegin(), begun, "set ProgressBar1.Visible False") != begun;
  if (begun == before.rend() || done) return Step::handling;
  return std::any_of(before.rbegin(), begun, isGivingUp) ? Step::givingUp : Step::opening;
}

bool isScriptLine(const std::string& line) { return line.starts_with("> "); }

// The failure that was let happen; false when there is none.
bool findIncident(const Lines& transcript, Incident& incident) {
  const auto at = std::ranges::find_if(transcript, isFault);
  if (at == transcript.end()) return false;
  const auto script = std::find_if(std::make_reverse_iterator(at), transcript.rend(), isScriptLine);
  incident.script = *script;
  incident.before.assign(script.base(), at->starts_with("error ") ? at : at + 1);
  incident.after.assign(at + 1, std::find_if(at + 1, transcript.end(), isScriptLine));
  incident.isEngines = at->starts_with("error " + std::to_string(failures::kEngineRejected) + " ");
  return true;
}

// `patterns` is one pattern, or several with "|" between them.
bool fitsOneOf(std::string_view patterns, std::string_view line) {
  for (std::size_t at = 0; at <= patterns.size();) {
    const std::size_t end = std::min(patterns.find('|', at), patterns.size());
    if (matchesWildcard(patterns.substr(at, end - at), line)) return true;
    at = end + 1;
  }
  return false;
}

bool fits(const Rule& rule, const Incident& incident) {
  if (!fitsOneOf(rule.script, incident.script) || rule.step != incident.step() ||
      !fitsOneOf(rule.call, incident.call())) {
    return false;
  }
  if (rule.before.empty()) return true;
  const Lines earlier(incident.before.begin(), incident.before.end() - 1);
  if (rule.before.starts_with("^")) return !earlier.empty() && fitsOneOf(rule.before.substr(1), earlier.back());
  return std::ranges::any_of(earlier, [&](const std::string& line) { return fitsOneOf(rule.before, line); });
}

// Takes the lines of giving up a workspace from the front of `rest`.
bool takeGivingUp(Lines& rest, bool isEngines) {
  std::size_t at = 0;
  const auto take = [&](std::string_view pattern) {
    const bool isThere = at < rest.size() && matchesWildcard(pattern, rest[at]);
    if (isThere) ++at;
    return isThere;
  };
  if (!take(isEngines ? kEngineRefused : kOtherRefused)) return false;
  if (isEngines) take("release #*");  // if there was one
  if (!std::ranges::all_of(kPutBack, take)) return false;
  rest.erase(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(at));
  return true;
}

bool takeReport(Lines& rest) {
  const std::string report = std::string("msgbox 0 \"Mortalidad en Veldoria 1999-2002\" \"") + kFaultText + "\" = ok";
  if (rest.empty() || rest.front() != report) return false;
  rest.erase(rest.begin());
  return true;
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
  const auto* const rule = std::ranges::find_if(kRules, [&](const Rule& r) { return fits(r, incident); });
  if (rule == std::end(kRules)) return described(incident, "no rule for this");
  Lines rest = incident.after;
  if (rule->step == Step::opening && !takeGivingUp(rest, incident.isEngines))
    return described(incident, "the workspace was not given up");
  if (rule->reaction == Reaction::reported && !takeReport(rest)) return described(incident, "not reported");
  bool hasFollowed = rule->mustFollow.empty();
  for (const std::string& line : rest) {
    const bool isTheOne = !rule->mustFollow.empty() && fitsOneOf(rule->mustFollow, line);
    if (!isTheOne && !fitsOneOf(rule->mayFollow, line)) return described(incident, "this was not to follow: " + line);
    hasFollowed = hasFollowed || isTheOne;
  }
  if (!hasFollowed) return described(incident, "this did not follow: " + std::string(rule->mustFollow));
  return "";
}

}  // namespace scenarios
