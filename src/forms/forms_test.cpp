#include <gtest/gtest.h>

#include "forms/combo_box.h"
#include "forms/common_dialog.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/progress_bar.h"
#include "forms/shape.h"
#include "forms/tabs.h"
#include "forms/test_form.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "text/failure.h"

namespace {

using Lines = std::vector<std::string>;

class Forms : public ::testing::Test {
 protected:
  forms::testing::Log log;
  forms::testing::OpenForm form{log};

  // Ends the definition and loads the form; what was heard so far is forgotten.
  void load() {
    form.endDefinition();
    form.load();
    log.lines.clear();
  }

  template <class Function>
  static int failureNumber(Function function) {
    try {
      function();
    } catch (const Failure& failure) {
      return failure.number();
    }
    return 0;
  }
};

TEST_F(Forms, StoredValuesRaiseAndTellNothing) {
  forms::TextBox box(form, "txt");
  forms::TabControl tabs(form, "Ficha");
  int raised = 0;
  box.Change.add([&] { ++raised; });
  tabs.Click.add([&](int) { ++raised; });
  tabs.captions = {"a", "b"};
  box.setText("guardado");
  tabs.setTab(1);
  EXPECT_EQ(raised, 0);
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(Forms, LoadPutsStoredValuesBackAndPrecedesShow) {
  forms::Label label(form, "lbl");
  forms::TextBox box(form, "txt");
  label.setCaption("uno");
  box.setText("dos");
  form.endDefinition();
  form.Load.add([&] { log.lines.push_back("Load"); });
  form.Resize.add([&] { log.lines.push_back("Resize"); });
  form.Unload.add([&] { log.lines.push_back("Unload"); });

  form.show();
  EXPECT_EQ(log.take(), (Lines{"load frmPrueba", "Load", "frmPrueba.Visible=True", "show frmPrueba", "Resize"}));
  form.show();
  EXPECT_EQ(log.take(), (Lines{"frmPrueba.Visible=True", "show frmPrueba"})) << "only the first Show raises Resize";

  label.setCaption("otro");
  box.setText("otra");
  label.setVisible(false);
  log.lines.clear();
  form.unload();
  EXPECT_EQ(log.take(), (Lines{"Unload", "unload frmPrueba"}));
  form.unload();
  EXPECT_TRUE(log.lines.empty()) << "unloading a form that is not loaded does nothing";

  form.load();
  EXPECT_EQ(label.caption(), "uno");
  EXPECT_EQ(box.text(), "dos");
  EXPECT_TRUE(label.visible());
  EXPECT_FALSE(form.visible());
}

TEST_F(Forms, AFormMayUnloadItselfWhileUnloading) {
  load();
  form.Unload.add([&] { form.unload(); });
  form.unload();
  EXPECT_EQ(log.take(), (Lines{"unload frmPrueba"}));
  EXPECT_FALSE(form.isLoaded());
}

TEST_F(Forms, ResizeMinimizeRestore) {
  load();
  int resized = 0;
  form.Resize.add([&] { ++resized; });
  form.userResize(15360, 11520);
  EXPECT_EQ(form.width(), 15360);
  form.userMinimize();
  EXPECT_TRUE(form.isMinimized());
  form.userRestore();
  EXPECT_FALSE(form.isMinimized());
  EXPECT_EQ(resized, 3);
}

TEST_F(Forms, TextBoxRaisesChangeOnlyWhenTheTextChanges) {
  forms::TextBox box(form, "txt");
  load();
  int changed = 0;
  box.Change.add([&] { ++changed; });
  box.setText("a");
  box.setText("a");
  EXPECT_EQ(changed, 1);
  EXPECT_EQ(log.take(), (Lines{"txt.Text=\"a\"", "txt.Text=\"a\""})) << "every write is told";
  box.userEdit("ab");
  box.userEdit("ab");
  EXPECT_EQ(changed, 2);
  EXPECT_EQ(box.text(), "ab");
}

TEST_F(Forms, DropDownListTakesOnlyItsItems) {
  forms::DropDownList list(form, "Cmb");
  list.addItem("Ambos sexos");
  list.addItem("Hombres");
  load();
  int clicked = 0;
  list.Click.add([&] { ++clicked; });
  list.setText("AMBOS SEXOS");
  EXPECT_EQ(list.listIndex(), 0);
  EXPECT_EQ(list.text(), "Ambos sexos");
  EXPECT_EQ(clicked, 1);
  EXPECT_EQ(log.take(), (Lines{"Cmb.Text=\"Ambos sexos\""})) << "the text is what was written";
  list.setText("ambos sexos");
  EXPECT_EQ(clicked, 2) << "a text raises Click also for the item chosen";
  EXPECT_EQ(failureNumber([&] { list.setText("Nadie"); }), 383);
  EXPECT_EQ(list.listIndex(), 0);
  list.setListIndex(0);
  EXPECT_EQ(clicked, 2) << "the same index raises nothing";
  list.setListIndex(1);
  EXPECT_EQ(clicked, 3);
  EXPECT_EQ(failureNumber([&] { list.setListIndex(2); }), 380);
  list.userPick(1);
  EXPECT_EQ(clicked, 4) << "the user's own pick raises Click even on the item chosen";
}

TEST_F(Forms, ClearEmptiesAListWithoutAnEvent) {
  forms::DropDownList list(form, "Cmb");
  list.addItem("uno");
  load();
  list.setListIndex(0);
  int clicked = 0;
  list.Click.add([&] { ++clicked; });
  list.clear();
  EXPECT_EQ(list.listIndex(), -1);
  EXPECT_EQ(list.text(), "");
  EXPECT_EQ(clicked, 0);
}

TEST_F(Forms, EditableComboTellsTypingFromPicking) {
  forms::EditableCombo combo(form, "Combo");
  combo.addItem("1999");
  combo.addItem("2000");
  combo.setText("Año");
  load();
  EXPECT_EQ(combo.text(), "Año");
  int clicked = 0;
  int changed = 0;
  combo.Click.add([&] { ++clicked; });
  combo.Change.add([&] { ++changed; });
  combo.setListIndex(1);
  combo.userPick(0);
  EXPECT_EQ(clicked, 2);
  EXPECT_EQ(changed, 0);
  combo.userEdit("1999x");
  EXPECT_EQ(changed, 1);
  EXPECT_EQ(combo.listIndex(), -1);
  combo.setText("1999x");
  EXPECT_EQ(changed, 1);
  combo.setText("");
  EXPECT_EQ(changed, 2);
  EXPECT_EQ(clicked, 2);
}

TEST_F(Forms, ListBoxPicks) {
  forms::ListBox list(form, "Lista");
  load();
  list.addItem("Ávila");
  EXPECT_EQ(log.take(), (Lines{"add Lista Ávila"}));
  int clicked = 0;
  list.Click.add([&] { ++clicked; });
  list.userPick(0);
  list.userPick(0);
  EXPECT_EQ(clicked, 2);
  EXPECT_EQ(failureNumber([&] { list.userPick(1); }), 380);
}

TEST_F(Forms, TabControlRaisesClickWithTheTabLeft) {
  forms::TabControl tabs(form, "Ficha");
  tabs.captions = {"Tablas", "Mapas", "Datos", "Veldoria"};
  forms::Label onPage(form, "lbl");
  onPage.putInto(tabs, 2);
  load();
  std::vector<int> left;
  tabs.Click.add([&](int previous) { left.push_back(previous); });
  tabs.setTab(3);
  tabs.setTab(3);
  EXPECT_FALSE(onPage.isSeen());
  tabs.userPick(2);
  EXPECT_TRUE(onPage.isSeen());
  tabs.userPick(2);
  EXPECT_EQ(left, (std::vector<int>{0, 3}));
  EXPECT_EQ(failureNumber([&] { tabs.setTab(4); }), 380);
}

TEST_F(Forms, TabStripRaisesClickOnEachPick) {
  forms::TabStrip strip(form, "FichaAños");
  strip.captions = {"1999", "2000"};
  load();
  int clicked = 0;
  strip.Click.add([&] { ++clicked; });
  strip.userPick(1);
  strip.userPick(1);
  EXPECT_EQ(strip.selectedCaption(), "2000");
  EXPECT_EQ(clicked, 2);
}

TEST_F(Forms, SeenOnlyWithEveryContainer) {
  forms::TabControl tabs(form, "Ficha");
  tabs.captions = {"a", "b"};
  forms::Frame frame(form, "Frame1");
  frame.putInto(tabs, 0);
  forms::OptionButton option(form, "Opt");
  option.putInto(frame);
  load();
  EXPECT_TRUE(option.isSeen());
  frame.setVisible(false);
  EXPECT_FALSE(option.isSeen());
  frame.setVisible(true);
  tabs.setTab(1);
  EXPECT_FALSE(option.isSeen());
}

TEST_F(Forms, OptionButtonsExcludeEachOtherInTheirContainer) {
  forms::Frame frame(form, "Frame1");
  forms::OptionButton provinces(form, "OptProvincias");
  forms::OptionButton zones(form, "OptZbs");
  forms::OptionButton elsewhere(form, "OptOtro");
  provinces.putInto(frame);
  zones.putInto(frame);
  elsewhere.setValue(true);
  load();
  int released = 0;
  int clicked = 0;
  zones.MouseUp.add([&] { ++released; });
  zones.Click.add([&] { ++clicked; });
  provinces.setValue(true);
  zones.userRelease();
  EXPECT_TRUE(zones.value());
  EXPECT_FALSE(provinces.value());
  EXPECT_TRUE(elsewhere.value());
  zones.userRelease();
  EXPECT_EQ(released, 2);
  EXPECT_EQ(clicked, 1);
}

TEST_F(Forms, TreeAppendsAndKnowsPaths) {
  forms::TreeView tree(form, "TreeView1");
  load();
  forms::Node& year = tree.add(nullptr, "1999", {.bold = true, .color = 0x800000});
  forms::Node& unit = tree.add(nullptr, "Ávila");
  forms::Node& sex = tree.add(&unit, "Hombres", {.bold = false, .color = 192});
  EXPECT_EQ(year.path(), "1");
  EXPECT_EQ(sex.path(), "2/1");
  EXPECT_EQ(sex.parent(), &unit);
  unit.setExpanded(true);
  EXPECT_EQ(log.take(), (Lines{"node 1 1999", "node 2 Ávila", "node 2/1 Hombres", "expanded 2"}));
  tree.clear();
  EXPECT_TRUE(tree.roots().empty());
  EXPECT_EQ(log.take(), (Lines{"clear TreeView1"}));
}

TEST_F(Forms, ProgressBarHasARange) {
  forms::ProgressBar bar(form, "ProgressBar1");
  load();
  bar.setValue(40);
  EXPECT_EQ(log.take(), (Lines{"ProgressBar1.Value=40"}));
  EXPECT_EQ(failureNumber([&] { bar.setValue(101); }), 380);
  EXPECT_EQ(bar.value(), 40);
}

TEST_F(Forms, ImageArrayHasGaps) {
  forms::ImageArray images(form, "Image2", {0, 1, 3});
  load();
  std::vector<int> clicked;
  images.Click.add([&](int index) { clicked.push_back(index); });
  images.MouseMove.add([&](int index) { clicked.push_back(-index); });
  images.at(3).userClick();
  images.at(1).userMouseMove();
  EXPECT_EQ(clicked, (std::vector<int>{3, -1}));
  EXPECT_EQ(failureNumber([&] { (void)images.at(2); }), 9);
  EXPECT_EQ(form.find("image2(3)"), &images.at(3));
}

TEST_F(Forms, TimerTicksOnlyWhileEnabledAndLoaded) {
  forms::Timer timer(form, "Timer1");
  timer.interval = 2500;
  int ticks = 0;
  timer.Tick.add([&] { ++ticks; });
  form.endDefinition();
  timer.elapse();
  EXPECT_EQ(ticks, 0);
  form.load();
  timer.elapse();
  timer.setEnabled(false);
  timer.elapse();
  EXPECT_EQ(ticks, 1);
}

TEST_F(Forms, BrowserNavigatesAndAsksTheHostForTheName) {
  forms::WebBrowser browser(form, "Internet");
  load();
  browser.navigate("C:\\x.html");
  EXPECT_EQ(log.take(), (Lines{"navigate C:\\x.html"}));
  EXPECT_EQ(browser.path(), "C:\\x.html");
  EXPECT_EQ(browser.locationName(), "Página");
}

TEST_F(Forms, DisabledControlsIgnoreTheUser) {
  forms::Label label(form, "Label1");
  forms::CommandButton button(form, "Btn");
  forms::DropDownList list(form, "Cmb");
  list.addItem("uno");
  int raised = 0;
  label.Click.add([&] { ++raised; });
  button.Click.add([&] { ++raised; });
  list.Click.add([&] { ++raised; });
  load();
  label.setEnabled(false);
  button.setEnabled(false);
  list.setEnabled(false);
  label.userClick();
  button.userClick();
  list.userPick(0);
  EXPECT_EQ(raised, 0);
  label.setEnabled(true);
  label.userClick();
  EXPECT_EQ(raised, 1);
}

TEST_F(Forms, EveryWriteIsToldInTwips) {
  forms::PictureBox picture(form, "PictureMapa");
  load();
  picture.place(1, 2.5, 3, 4);
  picture.setVisible(false);
  EXPECT_EQ(log.take(), (Lines{"PictureMapa.Left=1", "PictureMapa.Top=2.5", "PictureMapa.Width=3",
                               "PictureMapa.Height=4", "PictureMapa.Visible=False"}));
  EXPECT_EQ(picture.hWnd(), 11);
}

TEST_F(Forms, QuotesInsideTextsAreDoubled) { EXPECT_EQ(forms::quoted("di \"sí\""), "\"di \"\"sí\"\"\""); }

}  // namespace
