#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <exception>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "atlas/atlas.h"
#include "atlas/shell/frm_inicio.h"
#include "atlas/shell/frm_principal.h"
#include "atlas/thematic/frm_tematicos.h"
#include "forms/timer.h"
#include "forms/tree_view.h"
#include "forms/web_browser.h"
#include "text/failure.h"
#include "text/utf8.h"

// For tests of the program: an outside world that writes down what is done to it and answers by script.
namespace atlas::testing {

using Lines = std::vector<std::string>;
using Row = std::map<std::string, std::string>;  // field, in lower case, and its text
using Rows = std::vector<Row>;

inline constexpr const char* kFolder = "C:\\Estudio";

class World final : public forms::Listener,
                    public platform::MapEngines,
                    public platform::WindowSystem,
                    public platform::Registry,
                    public platform::Files,
                    public platform::Programs,
                    public platform::Messages,
                    public platform::Dialogs {
 public:
  World() { installEngineAndReader(); }

  [[nodiscard]] platform::Ports ports() { return {*this, *this, *this, *this, *this, *this, *this, kFolder}; }

  // --- what happened ---
  Lines lines;
  // The lines so far that begin with one of the words, all when none is given; forgets them all.
  Lines take(std::initializer_list<std::string_view> words = {}) {
    Lines taken;
    for (const std::string& line : std::exchange(lines, {})) {
      const auto begins = [&](std::string_view word) { return line.starts_with(word); };
      if (words.size() == 0 || std::ranges::any_of(words, begins)) taken.push_back(line);
    }
    return taken;
  }

  // --- the script ---
  std::map<std::string, std::string> answers;                     // expression in lower case, and its value
  std::vector<std::pair<std::string, Rows>> tables;               // rows that a Select with this text in it finds
  std::string topLayer = "Provincias1999";                        // of the front map
  std::set<std::string> missingFiles;                             // workspaces that are not there
  std::map<std::string, std::string> files;                       // other files: path and name on the disk
  std::map<std::string, std::vector<std::string>> folderNames;    // folders within a folder
  std::map<std::string, std::vector<std::string>> registryTexts;  // App Paths program: type and data
  std::set<std::string> titles;                                   // top-level windows that exist
  std::deque<platform::Button> buttons;                           // what message boxes get; OK after that
  std::optional<std::string> fileNameChosen;                      // in the save dialog; cancelled without one
  std::string pageName = "Página";
  bool engineServiceAnswersNull = false;
  std::shared_ptr<platform::CallbackObject> callback;  // as registered last

  // The next effect whose line begins so fails.
  void failAt(const std::string& beginning, int number, const std::string& description = "motivo") {
    faults_.emplace_back(beginning, std::make_exception_ptr(Failure(number, description)));
  }
  // The same with a failure that is none of the ports' own.
  void breakAt(const std::string& beginning, const std::string& what) {
    faults_.emplace_back(beginning, std::make_exception_ptr(std::runtime_error(what)));
  }

  void installEngineAndReader() {
    registryTexts = {{"Mapinfor.exe", {"sz", "C:\\Motor"}}, {"ACRORD32.exe", {"sz", "C:\\Lector"}}};
    files["C:\\Motor\\mapinfor.exe"] = "mapinfor.exe";
    files["C:\\Lector\\ACRORD32.exe"] = "AcroRd32.exe";
  }

  // --- what the forms tell ---
  void formLoaded(forms::Form& form) override { note("load " + form.name()); }
  void formShown(forms::Form& form) override {
    titles.insert(form.caption());
    note("show " + form.name());
  }
  void formHidden(forms::Form& form) override {
    titles.erase(form.caption());
    note("hide " + form.name());
  }
  void formUnloaded(forms::Form& form) override {
    titles.erase(form.caption());
    note("unload " + form.name());
  }
  void written(forms::Control& control, forms::Property property) override {
    note("set " + control.name() + "." + std::string(forms::name(property)) + " " + control.describe(property));
  }
  void itemAdded(forms::Control& control, const std::string& item) override {
    note("add " + control.name() + " " + item);
  }
  void cleared(forms::Control& control) override { note("clear " + control.name()); }
  void nodeAdded(forms::TreeView&, const forms::Node& node) override {
    note("node " + node.path() + " " + node.text());
  }
  void nodeExpanded(forms::TreeView&, const forms::Node& node) override { note("expand " + node.path()); }
  void navigated(forms::WebBrowser&, const std::string& path) override { note("navigate " + path); }
  std::int64_t windowHandle(const forms::Control& control) override {
    if (control.name() == "frmPrincipal") return 100;
    if (control.name() == "PictureMapa") return 200;
    return control.name() == "frmTematicos" ? 300 : 0;
  }
  std::string locationName(const forms::WebBrowser&) override { return pageName; }

  // --- ports ---
  std::shared_ptr<platform::MapEngine> create(const std::string& programId) override {
    note("create " + programId);
    if (engineServiceAnswersNull) return nullptr;
    return std::make_shared<Engine>(*this, ++enginesCreated_);
  }
  platform::WindowHandle find(const std::string& title) override {
    const bool exists = titles.contains(title);
    note("find " + title + (exists ? " found" : " none"));
    return exists ? 7 : 0;
  }
  void close(platform::WindowHandle window) override { note("close " + std::to_string(window)); }
  void setParent(platform::WindowHandle child, platform::WindowHandle parent) override {
    note("parent " + std::to_string(child) + " " + std::to_string(parent));
  }
  void setZOrder(platform::WindowHandle window, platform::ZOrder order, unsigned flags) override {
    note("zorder " + std::to_string(window) + (order == platform::ZOrder::topmost ? " topmost " : " notopmost ") +
         std::to_string(flags));
  }
  Opened openKey(const std::string& path, std::uint32_t access) override {
    note("regopen " + path + " " + std::to_string(access));
    for (const auto& [program, value] : registryTexts) {
      ++keyOpened_;
      if (!path.ends_with("\\App Paths\\" + program)) continue;
      keys_[keyOpened_] = program;
      return {platform::kRegistrySuccess, keyOpened_};
    }
    return {platform::kRegistryNotFound, 0};
  }
  Queried queryValue(platform::RegistryKey key, const std::string& name, std::uint32_t bufferSize) override {
    note("regquery " + name + " " + std::to_string(bufferSize));
    if (!keys_.contains(key)) return {platform::kRegistryInvalidHandle, 0, 0, {}};
    const std::vector<std::string>& value = registryTexts.at(keys_.at(key));
    return stored(value[0], value[1], bufferSize);
  }
  void closeKey(platform::RegistryKey key) override { keys_.erase(key); }
  std::string lookUp(const std::string& path) override {
    note("dir " + path);
    if (missingFiles.contains(path)) return "";
    if (path.ends_with(".wor")) return path.substr(path.rfind('\\') + 1);
    const auto found = files.find(path);
    return found == files.end() ? "" : found->second;
  }
  std::vector<std::string> folders(const std::string& path) override { return folderNames[path]; }
  void copy(const std::string& from, const std::string& to) override { note("copy " + from + " -> " + to); }
  void start(const std::string& commandLine) override { note("shell " + commandLine); }
  void end() override { note("end"); }
  platform::Button show(const std::string& text, int style, const std::string& title) override {
    note("msgbox " + std::to_string(style) + " [" + title + "] " + text);
    if (buttons.empty()) return platform::Button::ok;
    const platform::Button button = buttons.front();
    buttons.pop_front();
    return button;
  }
  std::string save(const std::string& title, const std::string& filter, const std::string& name) override {
    note("savedialog " + title + " " + filter + " " + name);
    return fileNameChosen.value_or(name);
  }
  void help(const std::string& file, int command) override { note("help " + file + " " + std::to_string(command)); }

 private:
  class Engine final : public platform::MapEngine {
   public:
    Engine(World& world, int number) : world_(world), number_(number) {}
    ~Engine() override { world_.lines.push_back("release #" + std::to_string(number_)); }
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
    void run(const std::string& statements) override { world_.run(statements); }
    platform::Variant eval(const std::string& expression) override { return world_.evaluate(expression); }
    void setCallback(std::shared_ptr<platform::CallbackObject> object) override {
      world_.note("callback-set " + object->className());
      world_.callback = std::move(object);
    }

   private:
    World& world_;
    int number_;
  };

  void note(const std::string& line) {
    lines.push_back(line);
    const auto fault = std::ranges::find_if(faults_, [&](const auto& f) { return line.starts_with(f.first); });
    if (fault == faults_.end()) return;
    const std::exception_ptr failure = fault->second;
    faults_.erase(fault);
    std::rethrow_exception(failure);
  }

  static Queried stored(const std::string& type, const std::string& data, std::uint32_t bufferSize) {
    if (type == "status") return {std::stoi(data), 0, 0, {}};
    if (type == "secondstatus" && bufferSize != 0) return {std::stoi(data), platform::kRegistryText, 8, {}};
    if (type == "secondstatus") return {platform::kRegistrySuccess, platform::kRegistryText, 8, {}};
    Queried value{platform::kRegistrySuccess, platform::kRegistryText, 0, {data.begin(), data.end()}};
    if (type == "dword") {
      const auto number = static_cast<std::uint32_t>(std::stol(data));
      value.type = platform::kRegistryNumber;
      value.data.clear();
      for (unsigned shift = 0; shift < 32; shift += 8) value.data.push_back(static_cast<std::uint8_t>(number >> shift));
    } else {
      if (type == "binary") value.type = platform::kRegistryBinary;
      value.data.push_back(0);
    }
    value.size = static_cast<std::uint32_t>(value.data.size());
    value.data.resize(std::min<std::size_t>(value.data.size(), bufferSize));
    return value;
  }

  void run(const std::string& statement) {
    note("do " + statement);
    const std::string lower = text::lower(statement);
    if (lower.starts_with("select ")) {
      selection_.clear();
      cursor_ = 0;
      for (const auto& [words, rows] : tables) {
        if (lower.find(text::lower(words)) != std::string::npos) {
          selection_ = rows;
          break;
        }
      }
    } else if (lower == "fetch first from selection") {
      cursor_ = 0;
    } else if (lower == "fetch next from selection") {
      ++cursor_;
    }
  }

  platform::Variant evaluate(const std::string& expression) {
    const std::string value = valueOf(text::lower(expression));
    note("eval " + expression + " = " + value);
    return value;
  }

  std::string valueOf(const std::string& expression) {
    if (const auto scripted = answers.find(expression); scripted != answers.end()) return scripted->second;
    if (expression.starts_with("eot(")) return cursor_ < selection_.size() ? "F" : "T";
    if (expression == "selectioninfo(3)" || expression == "tableinfo(\"selection\",8)") {
      return std::to_string(selection_.size());
    }
    if (expression == "windowid(1)" || expression == "frontwindow()") return "77";
    if (expression == "windowinfo(77, 12)") return "555";
    if (expression == "layerinfo(77,1,1)") return topLayer;
    return fieldOf(expression);
  }

  // "table.field", or that rounded and formatted.
  std::string fieldOf(const std::string& expression) {
    const std::size_t dot = expression.find('.');
    const std::size_t end = expression.find_first_of(",)", dot);
    if (dot == std::string::npos || cursor_ >= selection_.size()) throw failures::engineRejected("expresión rechazada");
    const auto field =
        selection_[cursor_].find(expression.substr(dot + 1, end == std::string::npos ? end : end - dot - 1));
    if (field == selection_[cursor_].end()) throw failures::engineRejected("no existe la columna");
    return field->second;
  }

  std::vector<std::pair<std::string, std::exception_ptr>> faults_;
  std::map<platform::RegistryKey, std::string> keys_;
  platform::RegistryKey keyOpened_ = 0;
  int enginesCreated_ = 0;
  Rows selection_;
  std::size_t cursor_ = 0;
};

// The tree as lines, two blanks a level; a bold node has a *, a coloured one its colour, an expanded one a +.
inline void describe(const forms::Node& node, int level, Lines& lines) {
  std::string line(static_cast<std::size_t>(level) * 2, ' ');
  line += node.text();
  if (node.style().bold) line += " *";
  if (node.style().color) line += " " + std::to_string(*node.style().color);
  if (node.expanded()) line += " +";
  lines.push_back(line);
  for (const auto& child : node.children()) describe(*child, level + 1, lines);
}

inline Lines describe(const forms::TreeView& tree) {
  Lines lines;
  for (const auto& root : tree.roots()) describe(*root, 0, lines);
  return lines;
}

// The program in such a world.
class Program : public ::testing::Test {
 protected:
  World world;
  Atlas atlas{world.ports(), world};

  FrmPrincipal& main() { return atlas.frmPrincipal(); }
  FrmTematicos& selector() { return atlas.frmTematicos(); }

  // Starts the program and waits for the main window, on its statistics tab.
  void start() {
    atlas.Main();
    atlas.frmInicio().Timer1.elapse();
    world.lines.clear();
  }
  void startOnTab(int tab) {
    start();
    main().Ficha.userPick(tab);
    world.lines.clear();
  }
  // The user edits a combo's or box's text by picking an item.
  static void pick(forms::ItemList& list, const std::string& item) {
    const auto found = std::ranges::find(list.items(), item);
    ASSERT_NE(found, list.items().end()) << item;
    list.userPick(static_cast<int>(found - list.items().begin()));
  }
  static std::string inFolder(const std::string& path) { return kFolder + path; }
};

}  // namespace atlas::testing
