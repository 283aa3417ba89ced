#include "motor/language/testing_statements.h"

namespace motor {
namespace {

using testing_statements::parsed;
using testing_statements::shown;

TEST(WindowStatementsTest, setWindows) {
  const auto glued = parsed<SetWindow>("set window 1234Max");
  EXPECT_EQ(shown(glued.window.id), "1234");
  EXPECT_EQ(glued.shape.state, WindowState::maximized);
  const auto size = parsed<SetWindow>("set window 234499920 width 15.25 height 9.5");
  EXPECT_EQ(shown(*size.shape.width), "15.25 ");
  EXPECT_EQ(shown(*size.shape.height), "9.5 ");
  const auto legend = parsed<SetWindow>("set window legend position (6,5) units \"in\" ");
  EXPECT_EQ(legend.window.name, "legend");
  EXPECT_EQ(shown(legend.shape.position->at), "6,5");
  EXPECT_EQ(shown(parsed<SetWindow>("Set Window Ruler Parent 65938").parent), "65938");
  EXPECT_EQ(parsed<SetWindow>("Set Window Ruler Parent 65938").window.name, "ruler");
  const auto look = parsed<SetWindow>(
      "Set Window FrontWindow ScrollBars Off Autoscroll On Snap Mode On SysMenuClose Off Front Hide Title \"Main\"");
  EXPECT_EQ(look.scrollBars, false);
  EXPECT_EQ(look.autoscroll, true);
  EXPECT_EQ(look.closeBox, false);
  EXPECT_TRUE(look.front);
  EXPECT_EQ(look.shown, false);
  EXPECT_EQ(shown(look.title), "Main");
  parsed<SetWindow>(
      "Set Window v Printer\n Name \"\\\\X\\Y\" Orientation Portrait Copies 1\n Papersize 9\n Margins Left 0.33 Right "
      "0.3 Top 0.1 "
      "Bottom 0.3 Units \"in\"");
  parsed<SetWindow>(
      "Set Window Info\n Position (1,2) Units \"in\"\n Width 2 Units \"in\" Height 1 Units \"in\"\n Font "
      "(\"Arial\",0,8,0)");
}

TEST(WindowStatementsTest, openCloseAndEmbed) {
  EXPECT_EQ(parsed<OpenWindow>("open window legend").window.name, "legend");
  EXPECT_EQ(parsed<CloseWindow>("Close window legend").window.name, "legend");
  EXPECT_EQ(shown(parsed<CloseWindow>("Close Window 77 Interactive").window.id), "77");
  EXPECT_EQ(shown(parsed<SetApplicationWindow>("Set application Window 65938").handle), "65938");
  const auto next = parsed<SetNextDocument>("Set Next Document Parent 65938style 1");
  EXPECT_EQ(shown(next.parent) + "/" + shown(next.style), "65938/1");
}

TEST(MenuStatementsTest, createMenus) {
  const auto menu = parsed<CreateMenu>(
      "Create Menu \"MapperShortcut\" ID 17 as \"&Ver Toda la Capa...\" calling 807,\"&Borrar Etiquetas...\" calling "
      "814,\"(-\",\"&Quitar Selección...\" ID 5 HelpMsg \"x\" calling OLE \"borraseleccion\"");
  EXPECT_EQ(shown(menu.name) + "/" + shown(menu.id), "MapperShortcut/17");
  ASSERT_EQ(menu.items.size(), 4U);
  EXPECT_EQ(shown(menu.items[0].text), "&Ver Toda la Capa...");
  EXPECT_EQ(shown(menu.items[0].calling.command), "807");
  EXPECT_FALSE(menu.items[2].calling.command);
  EXPECT_EQ(menu.items[2].calling.method, "");
  EXPECT_EQ(menu.items[3].calling.method, "borraseleccion");
  EXPECT_EQ(shown(menu.items[3].id), "5");
}

TEST(MenuStatementsTest, createAndAlterButtonPads) {
  const auto pad = parsed<CreateButtonPad>(
      "Create Buttonpad \"Callback\" As Toolbutton ID 2001 DrawMode 34 Cursor 138 Calling OLE \"Info\"");
  EXPECT_EQ(shown(pad.title), "Callback");
  ASSERT_EQ(pad.buttons.size(), 1U);
  const PadButton& button = pad.buttons[0];
  EXPECT_EQ(button.kind, PadButton::Kind::tool);
  EXPECT_EQ(shown(button.id) + "/" + shown(button.drawMode) + "/" + shown(button.cursor), "2001/34/138");
  EXPECT_EQ(button.calling.method, "Info");
  const auto alter = parsed<AlterButtonPad>(
      "Alter buttonpad \"Callback\" add Toolbutton ID 2002 DrawMode 34 Cursor 138 Calling OLE \"InfoDatos\"");
  EXPECT_EQ(shown(alter.title), "Callback");
  EXPECT_EQ(alter.added.size(), 1U);
  const auto other = parsed<AlterButtonPad>("Alter ButtonPad ID 3 Remove 1, 2 Hide Float Destroy");
  EXPECT_EQ(shown(other.id), "3");
  EXPECT_EQ(other.removed.size(), 2U);
  EXPECT_EQ(other.shown, false);
  EXPECT_TRUE(other.destroyed);
  const auto many = parsed<CreateButtonPad>(
      "Create ButtonPad \"x\" As PushButton Calling 5 Icon 3 File \"a.bmp\" HelpMsg \"y\" Disable Separator "
      "ToggleButton Check "
      "Calling OLE \"m\" Width 3 Show");
  ASSERT_EQ(many.buttons.size(), 3U);
  EXPECT_EQ(many.buttons[0].enabled, false);
  EXPECT_EQ(many.buttons[1].kind, PadButton::Kind::separator);
  EXPECT_EQ(many.buttons[2].checked, true);
}

TEST(RunStatementsTest, areRead) {
  EXPECT_EQ(shown(parsed<RunMenuCommand>("run menu command 1705").code), "1705");
  EXPECT_FALSE(parsed<RunMenuCommand>("run menu command 1705").isOwnId);
  const auto own = parsed<RunMenuCommand>("run menu command ID 2001");
  EXPECT_TRUE(own.isOwnId);
  EXPECT_EQ(shown(own.code), "2001");
  EXPECT_EQ(shown(parsed<RunApplication>("run application \"C:\\Año\\x.wor\"").file), "C:\\Año\\x.wor");
  EXPECT_EQ(shown(parsed<RunCommand>("Run Command \"a\"").text), "a");
  parsed<EndSession>("end mapinfo");
}

TEST(SessionStatementsTest, areRead) {
  EXPECT_EQ(parsed<SetCoordSys>("Set CoordSys Earth").coordSys.text, "Earth");
  const auto bounds = parsed<SetCoordSys>(
      "Set CoordSys Earth Projection 3, 33, \"ft\", -120.5, 46, 0 Bounds (-348.6, -335.4) (365.1, 378.2)");
  EXPECT_EQ(bounds.coordSys.kind, CoordSysClause::Kind::earth);
  EXPECT_EQ(bounds.coordSys.text.substr(bounds.coordSys.text.find("Bounds")), "Bounds (-348.6, -335.4) (365.1, 378.2)");
  EXPECT_EQ(parsed<SetCoordSys>("Set CoordSys Layout Units \"in\"").coordSys.kind, CoordSysClause::Kind::layout);
  EXPECT_EQ(parsed<SetCoordSys>("Set CoordSys NonEarth Units \"ft\"").coordSys.kind, CoordSysClause::Kind::nonEarth);
  EXPECT_EQ(parsed<SetCoordSys>("Set CoordSys Table t").coordSys.table, "t");
  EXPECT_EQ(shown(parsed<SetCoordSys>("Set CoordSys Window 5").coordSys.window), "5");
  EXPECT_EQ(parsed<SetUnits>("Set Distance Units \"km\"").kind, SetUnits::Kind::distance);
  EXPECT_EQ(parsed<SetUnits>("Set Area Units \"sq km\"").kind, SetUnits::Kind::area);
  EXPECT_EQ(shown(parsed<SetUnits>("Set Paper Units \"cm\"").unit), "cm");
  EXPECT_EQ(parsed<SetFormat>("Set Format Number \"9,999.9\"").kind, SetFormat::Kind::number);
  EXPECT_EQ(parsed<SetFormat>("Set Format Date \"Local\"").kind, SetFormat::Kind::date);
}

TEST(SessionStatementsTest, keepVariables) {
  const auto statements = parseProgram("Dim a, b As Integer, s As String * 20\na = Frontwindow()\nUndim a, b");
  ASSERT_EQ(statements.size(), 3U);
  const auto& dim = std::get<Dim>(statements[0]);
  ASSERT_EQ(dim.variables.size(), 3U);
  EXPECT_EQ(dim.variables[0].type + dim.variables[1].type + dim.variables[2].type, "integerintegerstring");
  EXPECT_EQ(std::get<Assignment>(statements[1]).name.text, "a");
  EXPECT_EQ(std::get<Undim>(statements[2]).names.size(), 2U);
}

}  // namespace
}  // namespace motor
