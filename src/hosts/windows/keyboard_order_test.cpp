#include "hosts/windows/keyboard_order.h"

#include <gtest/gtest.h>

#include <array>

#include "forms/combo_box.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/tabs.h"
#include "hosts/windows/test_program.h"

namespace windows {
namespace {

using Words = testing::Program::Words;

// A menu over pages, of which the one in front holds two combos and two options, and a button below.
class Pages : public forms::Form {
 public:
  explicit Pages(forms::Listener& listener) : Form(listener, "frmPaginas") {
    place(0, 0, 9000, 7500);
    placeMenu();
    tabs.captions = {"Mapas", "Tablas"};
    tabs.place(150, 645, 4500, 3000);
    for (forms::Control* each : std::initializer_list<forms::Control*>{&drop, &combo, &left, &right}) {
      each->putInto(tabs, 0);
    }
    drop.place(150, 450, 3000, 315);
    combo.place(150, 900, 3000, 315);
    left.place(150, 1400, 1200, 300);
    right.place(1500, 1400, 1200, 300);
    right.setValue(true);
    hidden.putInto(tabs, 1);
    hidden.place(150, 450, 3000, 315);
    button.place(150, 4000, 1500, 400);
    endDefinition();
    reports.MouseMove.add([this] { reportsMenu.setVisible(true); });
    help.MouseMove.add([this] { helpMenu.setVisible(true); });
    quit.MouseMove.add([this] { closeMenus(); });
    MouseMove.add([this] { closeMenus(); });
  }
  forms::Label help{*this, "LblAyuda"};
  forms::Label reports{*this, "LblInformes"};
  forms::Label quit{*this, "LblSalir"};
  forms::TabControl tabs{*this, "Ficha"};
  forms::DropDownList drop{*this, "CmbLista"};
  forms::EditableCombo combo{*this, "ComboTabla"};
  forms::OptionButton left{*this, "OptIzquierda"};
  forms::OptionButton right{*this, "OptDerecha"};
  forms::TextBox hidden{*this, "txtOculto"};
  forms::CommandButton button{*this, "BtnVer"};
  forms::Frame reportsMenu{*this, "Informes"};
  forms::Frame helpMenu{*this, "Ayuda"};
  forms::Label firstReport{*this, "PDF1999"};
  forms::Label lastReport{*this, "PDF2000"};
  forms::Label credits{*this, "LblCreditos"};

 private:
  void placeMenu() {
    forms::Twips at = 150;
    for (forms::Label* label : {&help, &reports, &quit}) {
      label->place(at, 30, 1500, 570);
      at += 1600;
    }
    helpMenu.place(150, 600, 1500, 960);
    reportsMenu.place(1750, 600, 1500, 960);
    for (forms::Label* entry : {&firstReport, &lastReport}) entry->putInto(reportsMenu);
    credits.putInto(helpMenu);
    firstReport.place(60, 60, 1200, 255);
    lastReport.place(60, 345, 1200, 255);
    credits.place(60, 60, 1200, 255);
    for (forms::Label* entry : {&firstReport, &lastReport, &credits}) entry->Click.add([] {});
    closeMenus();
  }
  void closeMenus() {
    reportsMenu.setVisible(false);
    helpMenu.setVisible(false);
  }
};

class KeyboardOrder : public ::testing::Test {
 protected:
  void SetUp() override {
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);  // beside all windows
    form.show();
    program.settle();
    SetActiveWindow(window());
  }
  void TearDown() override {
    holdShift(false);
    if (form.isLoaded()) form.unload();
    program.settle();
  }

  [[nodiscard]] HWND window() const { return program.window(form); }
  // The control that has the keyboard, or nothing.
  [[nodiscard]] std::string focus() const {
    for (HWND at = GetFocus(); at != nullptr && at != window(); at = GetParent(at)) {
      if (const ControlView* view = ControlView::of(at)) return view->control().name();
    }
    return "";
  }
  void focusOn(const forms::Control& control) const { SetFocus(program.window(control)); }
  static void holdShift(bool held) {
    std::array<BYTE, 256> keys{};
    constexpr BYTE kDown = 0x80;
    keys[VK_SHIFT] = held ? kDown : 0;
    SetKeyboardState(keys.data());
  }
  std::string press(WPARAM key) const {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 0);
    program.settle();
    return focus();
  }
  // Where the keyboard goes from here with so many Tab keys.
  Words tab(int times, bool next = true) const {
    holdShift(!next);
    Words places;
    while (times-- > 0) places.push_back(press(VK_TAB));
    return places;
  }
  bool closes(const forms::Frame& menu, ULONGLONG milliseconds = 30000) const {
    return program.becomesSo([&menu] { return !menu.visible(); }, milliseconds);
  }
  // In the time of several looks at the pointer.
  bool closesSoon(const forms::Frame& menu) const { return closes(menu, 600); }

  testing::Program program;
  Pages form{program.host};
};

TEST_F(KeyboardOrder, LeadsThroughAPageAndBeyondIt) {
  focusOn(form.tabs);
  EXPECT_EQ(tab(5), (Words{"CmbLista", "ComboTabla", "OptDerecha", "BtnVer", "LblAyuda"}));
}

TEST_F(KeyboardOrder, LeadsBackTheSameWay) {
  focusOn(form.button);
  EXPECT_EQ(tab(5, false), (Words{"OptDerecha", "ComboTabla", "CmbLista", "Ficha", "LblSalir"}));
}

TEST_F(KeyboardOrder, GoesOnFromAnOptionThatIsNotChosen) {
  focusOn(form.left);
  EXPECT_EQ(tab(1), Words{"BtnVer"});
  focusOn(form.left);
  EXPECT_EQ(tab(1, false), Words{"ComboTabla"});
}

TEST_F(KeyboardOrder, LeadsFromALabelThroughItsMenu) {
  focusOn(form.button);
  EXPECT_EQ(tab(6), (Words{"LblAyuda", "LblCreditos", "LblInformes", "PDF1999", "PDF2000", "LblSalir"}));
  EXPECT_FALSE(form.reportsMenu.visible());
  EXPECT_EQ(tab(2, false), (Words{"LblInformes", "LblAyuda"}));
  EXPECT_TRUE(form.helpMenu.visible());
  EXPECT_FALSE(form.reportsMenu.visible());
}

TEST_F(KeyboardOrder, LeavesAMenuOpenToTheKeyboardWhereverThePointerRests) {
  focusOn(form.quit);
  EXPECT_EQ(tab(1, false), Words{"LblInformes"});
  EXPECT_FALSE(closesSoon(form.reportsMenu));
  EXPECT_EQ(tab(1), Words{"PDF1999"});
  EXPECT_FALSE(closesSoon(form.reportsMenu));
  SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 2, GetSystemMetrics(SM_CYSCREEN) - 2);
  EXPECT_TRUE(closes(form.reportsMenu));
  EXPECT_EQ(focus(), "LblInformes");
}

// Windows tells a window of the pointer again when something beneath it appears.
TEST_F(KeyboardOrder, DoesNotTakeAPointerThatRestsOnTheFormForOneThatMoves) {
  focusOn(form.quit);
  EXPECT_EQ(tab(1, false), Words{"LblInformes"});
  PostMessageW(window(), WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
  program.settle();
  EXPECT_TRUE(form.reportsMenu.visible());
  PostMessageW(window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
  PostMessageW(window(), WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
  program.settle();
  EXPECT_FALSE(form.reportsMenu.visible());
}

TEST_F(KeyboardOrder, ClosesAMenuThatTheKeyboardLeaves) {
  focusOn(form.quit);
  EXPECT_EQ(tab(1, false), Words{"LblInformes"});
  focusOn(form.drop);
  EXPECT_TRUE(closes(form.reportsMenu));
  EXPECT_EQ(focus(), "CmbLista");
}

TEST_F(KeyboardOrder, ReturnsToTheLabelFromAMenuClosedByEscape) {
  focusOn(form.quit);
  EXPECT_EQ(tab(1, false), Words{"LblInformes"});
  EXPECT_EQ(tab(1), Words{"PDF1999"});
  EXPECT_EQ(press(VK_ESCAPE), "LblInformes");
  EXPECT_FALSE(form.reportsMenu.visible());
  EXPECT_EQ(tab(1), Words{"LblSalir"});
}

TEST_F(KeyboardOrder, LeavesAMenuToThePointerWhereTheKeyboardIsNotUsed) {
  focusOn(form.drop);
  form.reports.userMouseMove();
  EXPECT_TRUE(closes(form.reportsMenu)) << "the pointer is beside the window";
}

}  // namespace
}  // namespace windows
