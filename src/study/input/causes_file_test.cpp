#include "study/input/causes_file.h"

#include "study/input/testing_input.h"

namespace study {
namespace {

struct CausesCase {
  const char* what;
  std::string from;
  std::string to;
  std::vector<std::string> expected;
};

TEST(CausesFile, FaultsAreTold) {
  const std::vector<CausesCase> cases{
      {"unknown list",
       "3,Enfermedades cerebrovasculares,Lista reducida",
       "3,Enfermedades cerebrovasculares,lista",
       {"causes.csv: \"Lista reducida\" lacks the cause \"Enfermedades cerebrovasculares\", which the program has maps "
        "of; add it, spelled just so",
        "causes.csv:8: there is no list \"lista\"; write \"Grandes grupos\" or \"Lista reducida\""}},
      {"thematic cause misspelt",
       "Diabetes mellitus",
       "Diabetes",
       {"causes.csv: \"Lista reducida\" lacks the cause \"Diabetes mellitus\", which the program has maps of; add it, "
        "spelled just so"}},
      {"cause twice in a list",
       "Otras causas",
       "tumores",
       {"causes.csv:5: the cause \"tumores\" is in \"Grandes grupos\" twice; remove one of the two, or name them "
        "apart"}},
      {"no code", "II,Enf", ",Enf", {"causes.csv:3: the row has no code; fill it in"}},
      {"no cause", "Otras causas", "", {"causes.csv:5: the row has no cause; fill it in"}},
      {"unknown sex",
       "prostata,Hombres",
       "prostata,H",
       {"causes.csv:19: there is no sex \"H\"; write \"Hombres\", \"Mujeres\" or \"Ambos sexos\""}},
      {"sums nothing",
       "Lista reducida,neumonia,",
       "Lista reducida,  ,",
       {"causes.csv:14: the cause \"Neumonía\" sums nothing; list the codes of deaths.csv that it sums, with blanks "
        "between them"}},
      {"sums twice",
       "Grandes grupos,cerebro infarto",
       "Grandes grupos,cerebro cerebro infarto",
       {"causes.csv:3: the cause \"Enfermedades del sistema circulatorio\" sums \"cerebro\" twice; name each code "
        "once"}},
      {"code in no broad group",
       "Grandes grupos,colon estomago",
       "Grandes grupos,colon",
       {"causes.csv:17: the code \"estomago\" is summed by no broad group; name it in the sums of one row of \"Grandes "
        "grupos\""}},
      {"code in two broad groups",
       "Grandes grupos,cerebro infarto",
       "Grandes grupos,cerebro colon infarto",
       {"causes.csv:3: the code \"colon\" is summed by \"Enfermedades del sistema circulatorio\", but already by "
        "\"Tumores\"; leave it to one broad group, for each death belongs to one"}},
      {"double quote",
       "Otras causas",
       "\"Otras \"\"causas\"\"\"",
       {"causes.csv:5: the cause \"Otras \"causas\"\" holds a double quote, which would end it in the program's "
        "statements; leave it out, or write another sign"}},
      {"too long",
       "Otras causas",
       "Otras causas" + std::string(76, 'x'),
       {"causes.csv:5: the cause \"Otras causas" + std::string(68, 'x') +
        "...\" has 88 characters; there is room for 87; shorten it"}},
      {"letters that tables lack",
       "Otras causas",
       "Otras cauşas",
       {"causes.csv:5: the cause \"Otras cauşas\" holds \"ş\", which the tables' character set windows-1252 does not "
        "have; write it with letters of western Europe"}},
      {"line end in a cause",
       "Otras causas",
       "\"Otras\ncausas\"",
       {"causes.csv:5: the cause \"Otras?causas\" holds a line end, a tab or another control character; leave it "
        "out"}},
      {"no causes of women",
       "mama,Ambos sexos",
       "mama,Hombres",
       {"deaths.csv:3: Mujeres cannot die of \"mama\", which \"Tumor maligno de la mama\" sums in causes.csv; correct "
        "the row's sex or cause, or the sex of the cause in causes.csv"}},
  };
  for (const CausesCase& c : cases) {
    TestInput input;
    input.replace("causes.csv", c.from, c.to);
    EXPECT_EQ(input.faults(), c.expected) << c.what;
  }
}

}  // namespace
}  // namespace study
