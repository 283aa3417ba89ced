#include "motor/language/workspace.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "motor/language/parser.h"
#include "text/file_text.h"

namespace motor {
namespace {

std::string rejected(const std::string& bytes) {
  try {
    static_cast<void>(parseWorkspace(bytes));
    return "no error";
  } catch (const LanguageError& error) {
    return error.what();
  }
}

TEST(WorkspaceTest, readsHeaderAndStatements) {
  const Workspace workspace = parseWorkspace(
      "!Workspace\r\n!Version  600\r\n!Charset WindowsLatin1\r\nOpen Table \"A\xF1o\" As A\xF1o Interactive\r\n");
  EXPECT_EQ(workspace.version, 600);
  EXPECT_EQ(workspace.charset, "WindowsLatin1");
  ASSERT_EQ(workspace.statements.size(), 1U);
  const auto& open = std::get<OpenTable>(workspace.statements[0]);
  EXPECT_EQ(open.as->text, "Año");
  EXPECT_EQ(open.position, (Position{4, 1}));
}

TEST(WorkspaceTest, decodesByCharset) {
  struct Case {
    const char* header;
    const char* name;
  };
  const Case cases[] = {
      {"!Workspace\n!Version 600\n!Charset UTF-8\n", "Año"},
      {"!Workspace\n!Charset Neutral\n", "A\xF1o"},
      {"!WORKSPACE\n!version 400\n!CHARSET iso8859-1\n", "A\xF1o"},
      {"\xEF\xBB\xBF!Workspace\n", "Año"},
      {"\n!Workspace\n\n!Version 950\n\n", "Año"},
      {"!Workspace\r!Version 600\r!Charset WindowsLatin1\r", "A\xF1o"},
      {"!Workspace\n!Charset CodePage850\n", "A\xA4o"},
      {"!Workspace\n!Charset NeutralCharset\n", "A\xF1o"},
  };
  for (const Case& c : cases) {
    const Workspace workspace = parseWorkspace(std::string(c.header) + "Close Table " + c.name);
    ASSERT_EQ(workspace.statements.size(), 1U);
    EXPECT_EQ(std::get<CloseTable>(workspace.statements[0]).tables.at(0).text, "Año") << c.header;
  }
}

TEST(WorkspaceTest, mayHoldNothingElse) {
  EXPECT_TRUE(parseWorkspace("!Workspace\n!Version  400\n!Charset WindowsLatin1").statements.empty());
}

TEST(WorkspaceTest, rejectsOtherFiles) {
  EXPECT_EQ(rejected(""),
            "línea 1, columna 1: fin del texto: el archivo no es un entorno de trabajo: falta !Workspace");
  EXPECT_EQ(rejected("!table\n"),
            "línea 1, columna 1: «!table»: el archivo no es un entorno de trabajo: falta !Workspace");
  EXPECT_EQ(rejected("!Workspace\n!Fooo 1"), "línea 2, columna 1: «!Fooo»: se esperaba !Version o !Charset");
  EXPECT_EQ(rejected("!Workspace\n!Charset Fooo"), "línea 2, columna 1: «Fooo»: juego de caracteres desconocido");
  EXPECT_EQ(rejected("!Workspace\n!Charset WindowsJapanese"),
            "línea 2, columna 1: «WindowsJapanese»: este juego de caracteres no se puede leer");
  EXPECT_EQ(rejected("!Workspace\r!Version 600\rClose All\rfooo"),
            "línea 4, columna 1: «fooo»: se esperaba el principio de una instrucción");
  EXPECT_EQ(rejected("!Workspace\n!Version 600\n\nClose All\n  fooo"),
            "línea 5, columna 3: «fooo»: se esperaba el principio de una instrucción");
}

// Whatever a text is cut to, it is statements or an error.
void cutEverywhere(const std::string& source) {
  for (std::size_t length = 0; length <= source.size(); ++length) {
    try {
      static_cast<void>(parseWorkspace("!Workspace\n" + source.substr(0, length)));
    } catch (const LanguageError& error) {
      EXPECT_FALSE(error.reason().empty());
    }
  }
}

TEST(WorkspaceTest, survivesCutTexts) {
  const char* const sources[] = {
      "Open Table \"a\" As b Interactive Close Table a, b Close All Fetch Rec 3 From t",
      "Add Column t (c Char(20)) From s Set To a+1 Where COL1 = COL1 Dynamic",
      "Select a \"x\", count(*), wtavg(b,c) from t, u where not a in (select b from c) and t.d = u.col(2) or a between "
      "1 and 2 and "
      "obj partly within createpoint(1,2) group by 1, colx order by t.a desc into Q noselect",
      "Map From a, b Position (1,2) Units \"in\" Width 3 Units \"in\" Max Add Map Auto Layer x Remove Map Layer 1, "
      "\"Z(1)\" Interactive",
      "Set Map Window 5 CoordSys Earth Projection 8, 28, \"m\", -3 Bounds (1,2) (3,4) Center (1,2) Zoom Entire Layer 2 "
      "Preserve Zoom "
      "Display Zoom Distance Units \"km\" Scale 1 Units \"cm\" For 2 Units \"km\" Order 2,1 Layer 1 Display Global "
      "Global Pen (1,2,3) "
      "Zoom (1,2) Units \"km\" Off Label Line Arrow Position Above Left With a+\"b\" Auto Retry On Visibility Zoom "
      "(1,2) Object 3 "
      "Anchor (1,2) Text \"x\"",
      "Set Window 12Max Set Window Legend Parent 5 Position (1,2) Units \"in\" Title \"x\" Printer Name \"y\" Margins "
      "Left 1 Units \"in\"",
      "Create Menu \"M\" ID 17 As \"a\" calling 807, \"b\" calling OLE \"c\" Create ButtonPad \"p\" As ToolButton ID 1 "
      "Cursor 2 File "
      "\"x\" Calling OLE \"m\" Alter ButtonPad ID 3 Remove 1, 2 Add Separator",
      "Shade Window 3 1 with a, b ignore 0 ranges apply all use size Pen (1,2,3) -5: 6 Brush (1,2,3), 7: 8 default "
      "Line (1,2,3) # x 1 #",
      "Shade 1 with a half pie angle 3 max size 1 units \"in\" at value 2 by \"LOG\" style brush (1,2,3), brush "
      "(4,5,6)",
      "Set Legend layer 1 title \"a\" Font (\"A\",1,2,3) ranges auto display off, \"b\" display on Create Legend From "
      "Window 2 Hide",
      "Create Cartographic Legend Position (1,2) Window Title \"x\" Default Frame Style \"#\" Frame From Layer 1 Using "
      "Column object "
      "Style Font (\"A\",1,2,3) Text \"x\" Line Pen (1,2,3)",
      "Create Region 1 3 (1,2) (3,4) (5,6) Pen (1,2,3) Create Text Into Window 5 \"x\" (1,2) (3,4) Justify Left Create "
      "Arc (1,2) (3,4) 1 2",
      "Dim a, b As String * 20, c As Float a = 5 Undim a Run Menu Command ID 5 Run Command \"x\" & 1 Set Next Document "
      "Parent 5style 1",
      "Layout Width 5 Units \"in\" Set Layout Zoom 3 Browse * From t Update t Set a = 1 Where (b = \"2\") End MapInfo",
  };
  for (const char* source : sources) cutEverywhere(source);
}

#ifdef VELDORIA_SAMPLE_WORKSPACES

TEST(WorkspaceTest, readsSavedWorkspaces) {
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(VELDORIA_SAMPLE_WORKSPACES)) {
    ++files;
    try {
      static_cast<void>(parseWorkspace(text::wholeFile(entry.path()).value()));
    } catch (const LanguageError& error) {
      ADD_FAILURE() << entry.path().filename() << ": " << error.what();
    }
  }
  EXPECT_GT(files, 0);
}

TEST(WorkspaceTest, survivesCutSavedWorkspaces) {
  for (const auto& entry : std::filesystem::directory_iterator(VELDORIA_SAMPLE_WORKSPACES)) {
    const std::string bytes = text::wholeFile(entry.path()).value();
    for (std::size_t length = 0; length < bytes.size(); length += 499) {
      try {
        static_cast<void>(parseWorkspace(bytes.substr(0, length)));
      } catch (const LanguageError& error) {
        EXPECT_FALSE(error.reason().empty());
      }
    }
  }
}

#endif

}  // namespace
}  // namespace motor
