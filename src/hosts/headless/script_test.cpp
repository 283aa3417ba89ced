#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/combo_box.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/tabs.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "hosts/headless/choices.h"
#include "hosts/headless/control_report.h"
#include "hosts/headless/fake_windows.h"
#include "hosts/headless/headless_listener.h"
#include "hosts/headless/model_hands.h"
#include "hosts/headless/script_line.h"

namespace {

using headless::ScriptError;
using Lines = std::vector<std::string>;

Lines wordsOf(const std::string& line) {
  Lines result;
  for (const headless::Word& word : headless::splitWords(line)) result.push_back(word.text);
  return result;
}

TEST(ScriptLine, WordsAndQuotedTexts) {
  EXPECT_EQ(wordsOf("select CmbZonas \"Álamo  \"\"alto\"\"\"  #1 \"\""),
            (Lines{"select", "CmbZonas", "Álamo  \"alto\"", "#1", ""}));
  EXPECT_EQ(wordsOf(" a\tb "), (Lines{"a", "b"}));
  EXPECT_TRUE(headless::splitWords("\"#1\"").front().isQuoted);
  EXPECT_FALSE(headless::splitWords("#1").front().isQuoted);
  EXPECT_THROW((void)headless::splitWords("a \"b"), ScriptError);
  EXPECT_THROW((void)headless::splitWords("\"a\"b"), ScriptError);
}

TEST(ScriptLine, Arguments) {
  headless::ScriptLine line("resize 100 20.5 x");
  EXPECT_EQ(line.verb(), "resize");
  EXPECT_EQ(line.wholeNumber("the width"), 100);
  EXPECT_EQ(line.number("the height"), 20.5);
  EXPECT_THROW(line.finish(), ScriptError);
  EXPECT_THROW(line.wholeNumber("n"), ScriptError);
  EXPECT_FALSE(line.hasMore());
  EXPECT_THROW((void)line.text("more"), ScriptError);
  EXPECT_NO_THROW(line.finish());
  EXPECT_THROW((void)headless::ScriptLine("resize 1x").number("the width"), ScriptError);
  EXPECT_THROW((void)headless::ScriptLine("failat 1.5").wholeNumber("n"), ScriptError);
}

class Window : public forms::Form {
 public:
  explicit Window(forms::Listener& listener) : Form(listener, "frm") {
    Ficha.captions = {"Tablas", "Mapas"};
    Lista.addItem("uno");
    Lista.addItem("#1");
    Timer1.interval = 10;
    endDefinition();
    load();
  }
  forms::TextBox txt{*this, "txt"};
  forms::EditableCombo Combo{*this, "Combo"};
  forms::DropDownList Lista{*this, "Lista"};
  forms::TabControl Ficha{*this, "Ficha"};
  forms::Label Lbl{*this, "Lbl"};
  forms::OptionButton Opt{*this, "Opt"};
  forms::ImageArray Image2{*this, "Image2", {0, 2}};
  forms::Timer Timer1{*this, "Timer1"};
};

class HandsTest : public ::testing::Test {
 protected:
  headless::FakeWindows windows;
  headless::HeadlessListener listener{windows};
  Window form{listener};
  headless::ModelHands hands;

  void pick(forms::Control& control, const std::string& what) {
    hands.pick(control, headless::chosenIndex(control, headless::splitWords(what).front()));
  }
};

TEST_F(HandsTest, TypesOneCharacterAfterTheOther) {
  form.txt.setText("antes");
  Lines heard;
  form.txt.GotFocus.add([&] { heard.push_back("focus"); });
  form.txt.Change.add([&] { heard.push_back(form.txt.text()); });
  hands.type(form.txt, "Ñu");
  EXPECT_EQ(heard, (Lines{"focus", "", "Ñ", "Ñu"}));
  form.Combo.Change.add([&] { form.Combo.setText(""); });
  hands.type(form.Combo, "ab");
  EXPECT_EQ(form.Combo.text(), "") << "a handler may empty the box while it is typed into";
  EXPECT_THROW(hands.type(form.Lbl, "x"), ScriptError);
}

TEST_F(HandsTest, PicksByTextOrIndex) {
  pick(form.Lista, "#1");
  EXPECT_EQ(form.Lista.text(), "#1");
  pick(form.Lista, "uno");
  EXPECT_EQ(form.Lista.listIndex(), 0);
  pick(form.Lista, "\"#1\"");
  EXPECT_EQ(form.Lista.listIndex(), 1);
  pick(form.Ficha, "Mapas");
  EXPECT_EQ(form.Ficha.tab(), 1);
  for (const char* wrong : {"dos", "#2", "#x", "#-1", "Uno", "#"})
    EXPECT_THROW(pick(form.Lista, wrong), ScriptError) << wrong;
  EXPECT_THROW(pick(form.Lbl, "#0"), ScriptError);
}

TEST_F(HandsTest, ClicksWhatCanBeClicked) {
  int clicks = 0;
  form.Lbl.Click.add([&] { ++clicks; });
  form.Image2.Click.add([&](int index) { clicks += index; });
  form.Opt.MouseUp.add([&] { clicks += 10; });
  hands.click(form.Lbl);
  hands.click(form.Image2.at(2));
  hands.click(form.Opt);
  hands.release(form.Opt);
  EXPECT_EQ(clicks, 23);
  EXPECT_THROW(hands.click(form.txt), ScriptError);
  EXPECT_THROW(hands.release(form.Lbl), ScriptError);
  int ticks = 0;
  form.Timer1.Tick.add([&] { ++ticks; });
  hands.tick(form);
  EXPECT_EQ(ticks, 1);
}

TEST_F(HandsTest, ReportsAControl) {
  form.Lista.setListIndex(0);
  form.Lista.place(15, 30, 45, 60);
  EXPECT_EQ(headless::propertyLines(form.Lista),
            (Lines{"show Lista.Text \"uno\"", "show Lista.ListIndex 0", "show Lista.Visible True",
                   "show Lista.Enabled True", "show Lista.Left 15", "show Lista.Top 30", "show Lista.Width 45",
                   "show Lista.Height 60", "show Lista.List(0) \"uno\"", "show Lista.List(1) \"#1\""}));
}

TEST_F(HandsTest, ReportsATree) {
  forms::TreeView tree(form, "Arbol");
  forms::Node& root = tree.add(nullptr, "Ávila");
  tree.add(&tree.add(&root, "Hombres"), "Tumores: 1,5");
  tree.add(nullptr, "Veldoria");
  EXPECT_EQ(headless::treeLines(tree), (Lines{"Ávila", "  Hombres", "    Tumores: 1,5", "Veldoria"}));
}

}  // namespace
