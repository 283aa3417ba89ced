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
#include "hosts/headless/control_report.h"
#include "hosts/headless/fake_windows.h"
#include "hosts/headless/headless_listener.h"
#include "hosts/headless/script_line.h"
#include "hosts/headless/user.h"

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

class UserTest : public ::testing::Test {
 protected:
  headless::FakeWindows windows;
  headless::HeadlessListener listener{windows};
  Window form{listener};

  static headless::Word word(const std::string& s) { return headless::splitWords(s).front(); }
};

TEST_F(UserTest, TypesOneCharacterAfterTheOther) {
  form.txt.setText("antes");
  Lines heard;
  form.txt.GotFocus.add([&] { heard.push_back("focus"); });
  form.txt.Change.add([&] { heard.push_back(form.txt.text()); });
  headless::user::type(form.txt, "Ñu");
  EXPECT_EQ(heard, (Lines{"focus", "", "Ñ", "Ñu"}));
  form.Combo.Change.add([&] { form.Combo.setText(""); });
  headless::user::type(form.Combo, "ab");
  EXPECT_EQ(form.Combo.text(), "") << "a handler may empty the box while it is typed into";
  EXPECT_THROW(headless::user::type(form.Lbl, "x"), ScriptError);
}

TEST_F(UserTest, PicksByTextOrIndex) {
  headless::user::select(form.Lista, word("#1"));
  EXPECT_EQ(form.Lista.text(), "#1");
  headless::user::select(form.Lista, word("uno"));
  EXPECT_EQ(form.Lista.listIndex(), 0);
  headless::user::select(form.Lista, word("\"#1\""));
  EXPECT_EQ(form.Lista.listIndex(), 1);
  headless::user::select(form.Ficha, word("Mapas"));
  EXPECT_EQ(form.Ficha.tab(), 1);
  for (const char* wrong : {"dos", "#2", "#x", "#-1", "Uno", "#"})
    EXPECT_THROW(headless::user::select(form.Lista, word(wrong)), ScriptError) << wrong;
  EXPECT_THROW(headless::user::select(form.Lbl, word("#0")), ScriptError);
}

TEST_F(UserTest, ClicksWhatCanBeClicked) {
  int clicks = 0;
  form.Lbl.Click.add([&] { ++clicks; });
  form.Image2.Click.add([&](int index) { clicks += index; });
  form.Opt.MouseUp.add([&] { clicks += 10; });
  headless::user::click(form.Lbl);
  headless::user::click(form.Image2.at(2));
  headless::user::click(form.Opt);
  headless::user::release(form.Opt);
  EXPECT_EQ(clicks, 23);
  EXPECT_THROW(headless::user::click(form.txt), ScriptError);
  EXPECT_THROW(headless::user::release(form.Lbl), ScriptError);
  int ticks = 0;
  form.Timer1.Tick.add([&] { ++ticks; });
  headless::user::tick(form);
  EXPECT_EQ(ticks, 1);
}

TEST_F(UserTest, ReportsAControl) {
  form.Lista.setListIndex(0);
  form.Lista.place(15, 30, 45, 60);
  EXPECT_EQ(headless::propertyLines(form.Lista),
            (Lines{"show Lista.Text \"uno\"", "show Lista.ListIndex 0", "show Lista.Visible True",
                   "show Lista.Enabled True", "show Lista.Left 15", "show Lista.Top 30", "show Lista.Width 45",
                   "show Lista.Height 60", "show Lista.List(0) \"uno\"", "show Lista.List(1) \"#1\""}));
}

TEST_F(UserTest, ReportsATree) {
  forms::TreeView tree(form, "Arbol");
  forms::Node& root = tree.add(nullptr, "Ávila");
  tree.add(&tree.add(&root, "Hombres"), "Tumores: 1,5");
  tree.add(nullptr, "Veldoria");
  EXPECT_EQ(headless::treeLines(tree), (Lines{"Ávila", "  Hombres", "    Tumores: 1,5", "Veldoria"}));
}

}  // namespace
