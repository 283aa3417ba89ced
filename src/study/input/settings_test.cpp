#include "study/input/settings.h"

#include "study/input/settings_text.h"
#include "study/input/testing_input.h"

namespace study {
namespace {

struct SettingsCase {
  const char* what;
  std::string from;
  std::string to;
  std::vector<std::string> expected;
};

TEST(Settings, FaultsAreTold) {
  const std::string known =
      "region, years, standard, suppress_below, utm_zone, source, presentation.title, presentation.text, "
      "methodology.title, methodology.text, use.title, use.text, credits.title, credits.text, help.title, help.text";
  const std::vector<SettingsCase> cases{
      {"other region",
       "\"Veldoria\"",
       "\"Otra\"",
       {"study.toml:2: the setting \"region\" is \"Otra\", but the program shows the region \"Veldoria\" only; write "
        "region = \"Veldoria\", or remove the line"}},
      {"year out of the program's",
       "suppress_below",
       "years = 3\nsuppress_below",
       {"study.toml:5: the setting \"years\" is there twice; remove one of the two"}},
      {"unknown standard",
       "\"standard.csv\"",
       "\"mundial\"",
       {"study.toml:4: there is no standard population \"mundial\"; write one of \"europea 1976\", \"europea 2013\", "
        "or "
        "\"standard.csv\" for your own"}},
      {"unknown setting",
       "source",
       "sauce",
       {"study.toml:7: the setting \"sauce\" is not known; remove it, or correct it to one of: " + known}},
      {"unknown section",
       "[credits]\ntitle",
       "[creditos]\ntitle",
       {"study.toml:17: the setting \"creditos.title\" is not known; remove it, or correct it to one of: " + known}},
      {"single quotes",
       "source = \"Registro de mortalidad\"",
       "source = 'Registro de mortalidad'",
       {"study.toml:7: the setting \"source\" has its value in single quotes; write it in double quotes"}},
      {"a text that documents cannot show",
       "title = \"Presentación\"",
       "title = \"Presentación 漢字\"",
       {"study.toml:10: the setting \"presentation.title\": \"Presentación 漢字\" holds \"漢\", which the documents' "
        "character set windows-1252 does not have; write it with letters of western Europe"}},
      {"a text with a control character",
       "Primera línea.",
       "Primera\\u0000 línea.",
       {"study.toml:11: the setting \"presentation.text\": \"Primera? línea.??Segunda \"línea\".\" holds a control "
        "character; leave it out"}},
      {"a number for a text",
       "\"Registro de mortalidad\"",
       "5",
       {"study.toml:7: the setting \"source\" does not have a text for its value; write it as source = \"text\""}},
      {"a source that maps cannot show",
       "\"Registro de mortalidad\"",
       "\"Registro\\nde mortalidad\"",
       {"study.toml:7: the source \"Registro?de mortalidad\" holds a line end, a tab or another control character; "
        "leave "
        "it out"}},
      {"a text for a number",
       "suppress_below = 3",
       "suppress_below = \"3\"",
       {"study.toml:5: the setting \"suppress_below\" does not have a whole number for its value; write it as "
        "suppress_below = 3"}},
      {"true for a number",
       "utm_zone = 30",
       "utm_zone = true",
       {"study.toml:6: the setting \"utm_zone\" does not have a whole number for its value; write it as utm_zone = "
        "30"}},
      {"negative suppression",
       "suppress_below = 3",
       "suppress_below = -1",
       {"study.toml:5: the setting \"suppress_below\" is -1; give a number from 0 to 1000"}},
      {"no such UTM zone",
       "utm_zone = 30",
       "utm_zone = 61",
       {"study.toml:6: the setting \"utm_zone\" is 61; give a zone from 1 to 60, or from -1 to -60 in the south"}},
      {"no value", "utm_zone = 30", "utm_zone =", {"study.toml:6: the setting has no value; write one after the ="}},
      {"no setting",
       "utm_zone = 30",
       "utm_zone 30",
       {"study.toml:6: the line is neither a setting nor a heading; write key = value, [section] or # comment"}},
      {"an open text",
       "\"Registro de mortalidad\"",
       "\"Registro de mortalidad",
       {"study.toml:7: the text is not closed; close it with a \" on the same line"}},
      {"an open heading",
       "[credits]",
       "[credits",
       {"study.toml:16: the heading of a section is not closed; write [section]",
        "study.toml:17: the setting \"presentation.title\" is there twice; remove one of the two"}},
      {"an open long text", "línea\".\"\"\"", "línea", {"study.toml:11: the text is not closed; close it with \"\"\""}},
      {"an unknown escape",
       "\"Registro de mortalidad\"",
       R"("C:\datos")",
       {"study.toml:7: the text holds an unknown escape; write \\\\ for a backslash, \\\" for a quote"}},
      {"an unknown code",
       "\"Registro de mortalidad\"",
       R"("\uD800")",
       {"study.toml:7: the text holds an unknown escape; write \\u and four hexadecimal digits"}},
      {"text after a value",
       "utm_zone = 30",
       "utm_zone = 30 31",
       {"study.toml:6: text follows the end of the line's setting or heading; write one a line; a comment begins with "
        "#"}},
  };
  for (const SettingsCase& c : cases) {
    TestInput input;
    input.replace("study.toml", c.from, c.to);
    EXPECT_EQ(input.faults(), c.expected) << c.what;
  }
}

// Only the settings themselves: without years, nothing is said of those of the counts.
TEST(Settings, YearsAreTheProgramsOwn) {
  const std::vector<std::pair<std::string, std::vector<std::string>>> cases{
      {"[1998, 1999, 2001]",
       {"study.toml:3: the setting \"years\" holds 1998, which the program has no tab for; give years from 1999 to "
        "2002"}},
      {"[2001, 1999, 1999]", {"study.toml:3: the setting \"years\" holds 1999 twice; give each year once"}},
      {"[]", {"study.toml:3: the setting \"years\" holds no year; give at least one from 1999 to 2002"}},
      {"1999",
       {"study.toml:3: the setting \"years\" does not have a list of whole numbers for its value; write it as years = "
        "[1999, 2000]"}},
      {"[\"1999\"]",
       {"study.toml:3: the setting \"years\" does not have a list of whole numbers for its value; write it as years = "
        "[1999, 2000]"}},
      {"[1999, 2001",
       {"study.toml:3: the list is not closed or lacks an item; write [1, 2]",
        "study.toml: the setting \"years\" is missing; add it, as years = [1999, 2000]"}},
  };
  for (const auto& [years, expected] : cases) {
    TestInput input;
    input.replace("study.toml", "[1999, 2001]", years);
    std::vector<std::string> faults = input.faults();
    std::sort(faults.begin(), faults.end());
    std::vector<std::string> sorted = expected;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(faults, sorted) << years;
  }
  TestInput without;
  without.replace("study.toml", "years = [1999, 2001]\n", "");
  EXPECT_EQ(
      without.faults(),
      (std::vector<std::string>{"study.toml: the setting \"years\" is missing; add it, as years = [1999, 2000]"}));
}

TEST(Settings, AreReadFromText) {
  FaultLog log;
  const std::vector<Setting> settings = parseSettings(
      "a = \"uno \\\"dos\\\" \\u00f1\" # comment\r\n"
      "b=-5\n"
      "\n"
      "[ uno ]\n"
      "c = [\n  1, # first\n  2,\n]\n"
      "d = \"\"\"\r\nx\r\n\"y\" \\\\\r\n\"\"\"\n"
      "e = []\n"
      "f = 1.5",
      {log, "study.toml"});
  EXPECT_TRUE(log.isEmpty());
  ASSERT_EQ(settings.size(), 6U);
  EXPECT_EQ(std::get<std::string>(settings[0].value), "uno \"dos\" ñ");
  EXPECT_EQ(std::get<long>(settings[1].value), -5);
  EXPECT_EQ(settings[1].line, 2U);
  EXPECT_EQ(settings[2].name(), "uno.c");
  EXPECT_EQ(std::get<std::vector<long>>(settings[2].value), (std::vector<long>{1, 2}));
  EXPECT_EQ(std::get<std::string>(settings[3].value), "x\n\"y\" \\\n");
  EXPECT_EQ(settings[3].line, 9U);
  EXPECT_EQ(std::get<std::vector<long>>(settings[4].value), std::vector<long>{});
  EXPECT_EQ(settings[4].line, 13U);
  EXPECT_EQ(std::get<OtherValue>(settings[5].value).text, "1.5");
}

// A text cut anywhere is read to its end, with or without faults.
TEST(Settings, CutTextsDoNoHarm) {
  const std::string text = kTestSettings;
  for (std::size_t length = 0; length < text.size(); ++length) {
    FaultLog log;
    for (const Setting& setting : parseSettings(text.substr(0, length), {log, "study.toml"})) {
      EXPECT_GE(setting.line, 1U);
    }
  }
}

}  // namespace
}  // namespace study
