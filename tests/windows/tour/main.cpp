#include <filesystem>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

#include "hosts/windows/win32/handles.h"
#include "hosts/windows/win32/wide_text.h"
#include "replay/stage.h"
#include "replay/test_place.h"
#include "tour/outside_window.h"

// Starts the program as its user does and walks through its four modes, from outside:
//
//   windows_tour PROGRAM PICTURES
//   windows_tour PROGRAM             where no map engine is installed: it says so and ends
//
// Where something is worth a picture it prints "picture NAME" and waits until the file PICTURES\NAME.png is there. What
// stands for the map engine is told where its maps are by the environment (test_place.h). Last it prints "ALL n
// PASSED".
namespace {

namespace fs = std::filesystem;
using namespace wintour;

constexpr const wchar_t* kSplash = L"Estudio de Mortalidad en Veldoria";
constexpr const wchar_t* kMain = L"Mortalidad en Veldoria 1999-2002";
constexpr const wchar_t* kSelector = L"Seleccionar mapa temático";
constexpr const wchar_t* kNoEngine =
    L"MapInfo Proviewer no esta Instalado correctamente, instálelo de nuevo a través del acceso directo "
    L"'Instalar MapInfo Proviewer 6.0'.";
enum Mode { kTables, kMaps, kData, kStatistics };

class Tour {
 public:
  explicit Tour(const fs::path& program, fs::path pictures = {}) : pictures_(std::move(pictures)) {
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION started{};
    if (CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, program.parent_path().c_str(),
                       &how, &started) == 0) {
      throw std::runtime_error("the program does not start");
    }
    process_.reset(started.hProcess);
    CloseHandle(started.hThread);
  }
  ~Tour() { TerminateProcess(process_.get(), 1); }
  Tour(const Tour&) = delete;
  Tour& operator=(const Tour&) = delete;

  void runWithoutEngine() {
    doubleClickOn(awaitWindow(kSplash));
    HWND box = nullptr;
    waitUntil("a message", [&] { return (box = FindWindowW(L"#32770", L"")) != nullptr && isIdle(box); });
    (void)childWithText(box, kNoEngine);
    PostMessageW(childrenOf(box, WC_BUTTONW).front(), BM_CLICK, 0, 0);
    waitUntil("the message goes", [box] { return IsWindow(box) == 0; });
    awaitEnd();
  }

  int run() {
    const HWND splash = awaitWindow(kSplash);
    waitUntil("the splash is painted", [&] { return isIdle(splash) && isIdle(splash); });
    picture("portada");
    doubleClickOn(splash);
    main_ = awaitWindow(kMain);
    waitUntil("the splash goes", [&] { return IsWindow(splash) == 0; });
    settle();
    visitStatistics();
    visitData();
    visitMaps();
    visitTables();
    leave();
    return pictureCount_;
  }

 private:
  void visitStatistics() {
    picture("estadisticas");
    clickOn(map());
    waitUntil("figures of the place", [this] { return nodeCount() > 0; });
    settle();
    picture("estadisticas_lugar");
  }

  void visitData() {
    goTo(kData);
    picture("datos");
    pickFirst("a unit");
    waitUntil("figures of the unit", [this] { return nodeCount() > 3; });
    settle();
    picture("datos_unidad");
  }

  void visitMaps() {
    goTo(kMaps);
    (void)awaitWindow(kSelector);
    settle();
    picture("mapas");
  }

  void visitTables() {
    goTo(kTables);
    waitUntil("the selector goes", [] { return FindWindowW(nullptr, kSelector) == nullptr; });
    picture("tablas");
    clickOn(childWithText(main_, L"Información"));
    settle();
    picture("menu");
  }

  void leave() {
    clickOn(childWithText(main_, L"Salir"));
    awaitEnd();
  }

  void awaitEnd() const {
    constexpr DWORD kPatience = 60'000;  // milliseconds
    if (WaitForSingleObject(process_.get(), kPatience) != WAIT_OBJECT_0) throw std::runtime_error("it does not end");
    DWORD code = 0;
    GetExitCodeProcess(process_.get(), &code);
    if (code != 0) throw std::runtime_error("it ends with code " + std::to_string(code));
  }

  // The native control notifies its window as if the user had chosen the tab.
  void goTo(Mode mode) const {
    for (const HWND tabs : childrenOf(main_, WC_TABCONTROLW)) {
      if (SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0) != 4 || GetParent(tabs) != main_) continue;
      if (GetWindowLongPtrW(tabs, GWL_STYLE) & TCS_FIXEDWIDTH) continue;  // the years
      PostMessageW(tabs, TCM_SETCURFOCUS, mode, 0);
      waitUntil("the tab", [&] { return SendMessageW(tabs, TCM_GETCURSEL, 0, 0) == mode; });
      settle();
      return;
    }
    throw std::runtime_error("there are no main tabs");
  }

  void pickFirst(const std::string& what) const {
    HWND combo = nullptr;
    waitUntil("a choice of " + what, [&] { return (combo = filledCombo()) != nullptr; });
    SendMessageW(combo, CB_SETCURSEL, 0, 0);
    PostMessageW(GetParent(combo), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(combo));
  }

  // The first that has something to choose from, or null.
  [[nodiscard]] HWND filledCombo() const {
    for (const HWND combo : childrenOf(main_, WC_COMBOBOXW)) {
      if (SendMessageW(combo, CB_GETCOUNT, 0, 0) > 0) return combo;
    }
    return nullptr;
  }

  [[nodiscard]] HWND map() const {
    const auto maps = childrenOf(main_, L"MapEngineUnderTestMap");
    if (maps.empty()) throw std::runtime_error("there is no map");
    return maps.back();
  }

  [[nodiscard]] LRESULT nodeCount() const {
    const auto trees = childrenOf(main_, WC_TREEVIEWW);
    return trees.empty() ? 0 : SendMessageW(trees.front(), TVM_GETCOUNT, 0, 0);
  }

  // The window answers, and no notice asks to wait any more.
  void settle() const {
    for (int times = 0; times < 3; ++times) {
      waitUntil("the program answers", [this] { return isIdle(main_); });
      waitUntil("no notice is left", [this] {
        for (const HWND child : childrenOf(main_, WC_STATICW)) {
          if (textOf(child) == L"Espere por favor...") return false;
        }
        return true;
      });
    }
  }

  void picture(const std::string& name) {
    const fs::path file = pictures_ / (std::to_string(++pictureCount_) + "_" + name + ".png");
    std::cout << "picture " << file.filename().string() << std::endl;
    waitUntil("picture " + name, [&] { return fs::exists(file); });
  }

  windows::KernelHandle process_;
  fs::path pictures_;
  HWND main_ = nullptr;
  int pictureCount_ = 0;
};

int visitWithoutEngine(const fs::path& program) {
  Tour(program).runWithoutEngine();
  return 1;
}

int visit(const fs::path& program, const fs::path& pictures) {
  const wintest::TestPlace place = wintest::TestPlace::fromEnvironment();
  place.tellEngine("tour");
  wintest::Stage machine(place.viewer);
  machine.install(std::nullopt);
  return Tour(program, pictures).run();
}

}  // namespace

int wmain(int count, wchar_t** words) {
  if (count != 2 && count != 3) return 2;
  try {
    const int visited = count == 2 ? visitWithoutEngine(words[1]) : visit(words[1], words[2]);
    std::cout << "ALL " << visited << " PASSED" << std::endl;
    return 0;
  } catch (const std::exception& problem) {
    std::cout << "windows_tour: " << problem.what() << std::endl;
    return 1;
  }
}
