#include "fingers.h"

#include <algorithm>
#include <array>

#include "forms/combo_box.h"
#include "forms/image.h"
#include "forms/item_list.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/tabs.h"
#include "forms/text_box.h"
#include "text/number_text.h"

namespace monkey {
namespace {

constexpr std::size_t kBlindly = 40;  // once in so many times a control is taken that cannot be seen

using Words = std::string_view;

constexpr std::array kTexts{
    Words("ava"),  Words("bri"),    Words("ñor"),
    Words("Enc"),  Words("haya"),   Words("pin"),
    Words("xyz"),  Words("x"),      Words(""),
    Words("%no"),  Words("_re"),    Words("%%%"),
    Words("a\"b"), Words("\"\"\""), Words("Ávalos"),
    Words("  a"),  Words("'; x"),   Words("€∑∂ ñ"),
    Words("\\%_"), Words("1999"),   Words("un texto mucho más largo que cualquier nombre de lugar de este estudio")};

// West to east and south to north over the study, and beyond.
constexpr std::array kLongitudes{Words("-5"), Words("-3"), Words("-1"),         Words("-5.25"), Words("-4"),
                                 Words("0"),  Words("10"), Words("-5.9999999"), Words("180"),   Words("-1e9")};
constexpr std::array kLatitudes{Words("40.5"), Words("41.5"), Words("42"),         Words("42.5"), Words("41"),
                                Words("43"),   Words("10"),   Words("40.0000001"), Words("-90"),  Words("1e9")};

constexpr std::array kMethods{Words("Info"), Words("InfoDatos"), Words("InfoEstadisticas"), Words("borraseleccion"),
                              Words("INFO")};
constexpr std::array kMessages{Words("MI:-3,41.5,F,F,,,2002,"),
                               Words("MI:-5,42,F,F,,,2003,"),
                               Words("MI:-1,40.5,F,F,,,2001,"),
                               Words("MI:10,10,F,F,,,2001,"),
                               Words("MI:-5.25,42.5"),
                               Words("MI:,,,,,,,1"),
                               Words("MI:1,2,3,4,5,6,7,8,99"),
                               Words("MI:"),
                               Words("MI:x,y"),
                               Words("MI:-3"),
                               Words("hola"),
                               Words(""),
                               Words("mi:1,2"),
                               Words("MI:\",\""),
                               Words("MI:1 or 1=1,2")};

constexpr std::array kEngineCalls{Words("do *"),
                                  Words("eval *"),
                                  Words("create *"),
                                  Words("callback-set *"),
                                  Words("do run application *"),
                                  Words("do Create Menu *"),
                                  Words("do Set application *"),
                                  Words("do Select *"),
                                  Words("do Add map layer *"),
                                  Words("do Set map *"),
                                  Words("do set map *"),
                                  Words("do Fetch *"),
                                  Words("do fetch *"),
                                  Words("do Remove *"),
                                  Words("do Close *"),
                                  Words("do end mapinfo"),
                                  Words("do run menu command *"),
                                  Words("eval *EOT*"),
                                  Words("eval Selection*"),
                                  Words("eval selection*"),
                                  Words("eval Formatnumber*"),
                                  Words("eval *indow*"),
                                  Words("eval *ayer*"),
                                  Words("eval Search*"),
                                  Words("eval Table*")};
constexpr std::array kOtherCalls{Words("dir *"),         Words("copy *"),   Words("shell *"),    Words("msgbox *"),
                                 Words("savedialog *"),  Words("help *"),   Words("zorder *"),   Words("findwindow *"),
                                 Words("closewindow *"), Words("parent *"), Words("navigate *"), Words("regopen *"),
                                 Words("regquery *")};

constexpr std::array kFiles{
    Words("<app>\\Tablas\\Estadisticas\\Estadisticas.wor"),
    Words("<app>\\Tablas\\1999\\Año1999.wor"),
    Words("<app>\\Tablas\\2001\\Año2001.wor"),
    Words("<app>\\Tablas\\Tematicos\\2000\\Ambos Sexos\\Veldoria\\Zonas Básicas\\Población.wor"),
    Words("<app>\\Archivos\\mortalidad_1999.pdf"),
    Words("<app>\\Archivos\\mortalidad_2000.pdf"),
    Words("C:\\Archivos de programa\\Adobe\\Reader\\ACRORD32.exe")};

constexpr std::array kSizes{300, 1500, 4800, 9000, 12000, 15360, 21600, 30000};

std::string asWord(const std::string& text) {
  const bool needsQuotes = text.empty() || text.find_first_of(" \t\"") != std::string::npos || text.starts_with("#");
  return needsQuotes ? forms::quoted(text) : text;
}

// As a script names it: "Image2 3", or "frmInicio.Image1" where another form has one of that name.
std::string nameOf(const forms::Control& control) {
  std::string name = control.name();
  if (control.form().name() == "frmInicio" && &control != &control.form()) return "frmInicio." + name;
  std::ranges::replace(name, '(', ' ');
  std::erase(name, ')');
  return name;
}

template <class List>
std::string selectLine(Fingers& fingers, const forms::Control& control, const List& texts) {
  if (texts.empty()) return "";
  const std::size_t index = fingers.below(texts.size());
  const bool isUnique = std::ranges::count(texts, texts[index]) == 1;
  const std::string what = isUnique ? asWord(texts[index]) : "#" + std::to_string(index);
  return "select " + nameOf(control) + " " + what;
}

const forms::Form* formNamed(const atlas::Atlas& program, const std::string& name) {
  const auto forms = program.forms();
  const auto found =
      std::ranges::find_if(forms, [&](const forms::Form* form) { return form->isLoaded() && form->name() == name; });
  return found == forms.end() ? nullptr : *found;
}

}  // namespace

const std::vector<Fingers::Habit>& Fingers::habits() {
  static const std::vector<Habit> all{
      {9, &Fingers::pickMainTab},  {3, &Fingers::pickTab},     {9, &Fingers::pickYear},    {24, &Fingers::pickItem},
      {10, &Fingers::clickImage},  {3, &Fingers::clickLabel},  {3, &Fingers::clickButton}, {5, &Fingers::chooseOption},
      {7, &Fingers::type},         {1, &Fingers::focus},       {2, &Fingers::point},       {12, &Fingers::clickMap},
      {3, &Fingers::changeWindow}, {1, &Fingers::closeWindow}, {1, &Fingers::wait},        {3, &Fingers::callBack},
      {2, &Fingers::answer},       {1, &Fingers::hideFile},    {4, &Fingers::failEngine},  {2, &Fingers::failOther},
  };
  return all;
}

std::string Fingers::next(const atlas::Atlas* program) {
  if (program == nullptr) {
    static const std::vector<std::string> none;
    if (!onceIn(4)) return "start";
    return onceIn(2) ? "fail " + asWord(oneOf(kOtherCalls)) + failureWords() : "nofile " + asWord(oneOf(kFiles));
  }
  if (formNamed(*program, "frmPrincipal") == nullptr && formNamed(*program, "frmTematicos") == nullptr) {
    if (onceIn(60)) return "close frmInicio";
    return onceIn(3) ? "doubleclick frmInicio" : "tick";
  }
  int total = 0;
  for (const Habit& habit : habits()) total += habit.weight;
  for (;;) {
    auto at = static_cast<int>(below(static_cast<std::size_t>(total)));
    const auto habit = std::ranges::find_if(habits(), [&](const Habit& each) { return (at -= each.weight) < 0; });
    if (std::string line = (this->*habit->line)(*program); !line.empty()) return line;
  }
}

template <class Kind>
Kind* Fingers::control(const atlas::Atlas& program) {
  const bool blindly = onceIn(kBlindly);
  std::vector<Kind*> found;
  for (const forms::Form* form : program.forms()) {
    if (!form->isLoaded() || (!form->visible() && !blindly)) continue;
    for (forms::Control* each : form->controls()) {
      auto* kind = dynamic_cast<Kind*>(each);
      if (kind != nullptr && (blindly || (each->isSeen() && each->enabled()))) found.push_back(kind);
    }
  }
  return found.empty() ? nullptr : found[below(found.size())];
}

std::string Fingers::pickMainTab(const atlas::Atlas& program) {
  if (formNamed(program, "frmPrincipal") == nullptr) return "";
  constexpr std::array kTabs{Words("Tablas"), Words("Mapas"), Words("Datos"), Words("Datos"), Words("Veldoria")};
  return "select Ficha " + oneOf(kTabs);
}

std::string Fingers::pickTab(const atlas::Atlas& program) {
  const auto* tabs = control<forms::TabControl>(program);
  return tabs == nullptr ? "" : selectLine(*this, *tabs, tabs->captions);
}

std::string Fingers::pickYear(const atlas::Atlas& program) {
  const auto* years = control<forms::TabStrip>(program);
  return years == nullptr ? "" : selectLine(*this, *years, years->captions);
}

std::string Fingers::pickItem(const atlas::Atlas& program) {
  const auto* list = control<forms::ItemList>(program);
  return list == nullptr ? "" : selectLine(*this, *list, list->items());
}

std::string Fingers::clickImage(const atlas::Atlas& program) {
  const auto* image = control<forms::Image>(program);
  return image == nullptr ? "" : "click " + nameOf(*image);
}

std::string Fingers::clickLabel(const atlas::Atlas& program) {
  const auto* label = control<forms::Label>(program);
  if (label == nullptr || (label->name() == "LblSalir" && !onceIn(20))) return "";
  return "click " + nameOf(*label);
}

std::string Fingers::clickButton(const atlas::Atlas& program) {
  const auto* button = control<forms::CommandButton>(program);
  return button == nullptr ? "" : "click " + nameOf(*button);
}

std::string Fingers::chooseOption(const atlas::Atlas& program) {
  const auto* option = control<forms::OptionButton>(program);
  return option == nullptr ? "" : "mouseup " + nameOf(*option);
}

std::string Fingers::type(const atlas::Atlas& program) {
  const forms::Control* box = nullptr;
  if (onceIn(3)) box = control<forms::EditableCombo>(program);
  if (box == nullptr) box = control<forms::TextBox>(program);
  if (box == nullptr) return "";
  return (onceIn(4) ? "edit " : "type ") + nameOf(*box) + " " + forms::quoted(oneOf(kTexts));
}

std::string Fingers::focus(const atlas::Atlas& program) {
  const auto* any = control<forms::Control>(program);
  return any == nullptr ? "" : "focus " + nameOf(*any);
}

std::string Fingers::point(const atlas::Atlas& program) {
  if (onceIn(5)) return "mousemove frmPrincipal";
  const auto* any = control<forms::Control>(program);
  return any == nullptr ? "" : "mousemove " + nameOf(*any);
}

std::string Fingers::clickMap(const atlas::Atlas& program) {
  if (program.motormapa == nullptr) return "";
  return "mapclick " + oneOf(kLongitudes) + " " + oneOf(kLatitudes);
}

std::string Fingers::changeWindow(const atlas::Atlas& program) {
  const forms::Form* main = formNamed(program, "frmPrincipal");
  if (main == nullptr) return "";
  if (main->isMinimized()) return "restore";
  if (onceIn(3)) return "minimize";
  const auto size = [&] { return text::number(kSizes[below(kSizes.size())] + static_cast<int>(below(2)) * 0.5); };
  return "resize " + size() + " " + size();
}

std::string Fingers::closeWindow(const atlas::Atlas& program) {
  if (formNamed(program, "frmTematicos") != nullptr && !onceIn(4)) return "close frmTematicos";
  return onceIn(4) ? "close" : "";
}

std::string Fingers::wait(const atlas::Atlas& /*program*/) { return "tick"; }

std::string Fingers::callBack(const atlas::Atlas& program) {
  if (program.motormapa == nullptr) return "";
  return "callback " + oneOf(kMethods) + " " + forms::quoted(oneOf(kMessages));
}

std::string Fingers::answer(const atlas::Atlas& /*program*/) {
  constexpr std::array kAnswers{Words("answer ok"),
                                Words("answer yes"),
                                Words("answer no"),
                                Words("savename <app>\\salidas\\copia"),
                                Words("savename <app>\\salidas\\copia.html.txt"),
                                Words("savename \"<app>\\salidas\\otra copia.html\""),
                                Words("savename <app>\\nada\\copia"),
                                Words("savecancel"),
                                Words("locationname \"Grandes grupos\""),
                                Words("window MapInfo")};
  return oneOf(kAnswers);
}

std::string Fingers::hideFile(const atlas::Atlas& /*program*/) {
  return (onceIn(2) ? "nofile " : "file ") + asWord(oneOf(kFiles));
}

std::string Fingers::failEngine(const atlas::Atlas& /*program*/) {
  if (onceIn(2)) return "failat " + std::to_string(1 + below(60)) + failureWords();
  return "fail " + asWord(oneOf(kEngineCalls)) + failureWords();
}

std::string Fingers::failOther(const atlas::Atlas& /*program*/) {
  constexpr std::array kKinds{Words("machine "), Words("windows "), Words("dialogs ")};
  if (onceIn(4)) return "failcall " + oneOf(kKinds) + std::to_string(1 + below(8)) + failureWords();
  return "fail " + asWord(oneOf(kOtherCalls)) + failureWords();
}

// Most failures are the engine's own; the number of a missing object ends the program while a map is opened.
std::string Fingers::failureWords() {
  constexpr std::array kNumbers{Words(" 13"), Words(" 75"), Words(" 5"), Words(" 429"), Words(" 53")};
  constexpr std::array kWords{Words(""), Words(" fallo"), Words(" \"un \"\"fallo\"\" más\"")};
  if (onceIn(25)) return " 91";
  return (onceIn(3) ? oneOf(kNumbers) : " -2147352567") + oneOf(kWords);
}

}  // namespace monkey
