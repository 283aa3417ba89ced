#include <algorithm>
#include <functional>

#include "study/input/testing_input.h"

namespace study {
namespace {

using Texts = std::vector<std::string>;

struct Case {
  const char* what;
  std::function<void(TestInput&)> spoil;
  Texts expected;  // all faults
};

std::function<void(TestInput&)> replacing(std::string file, std::string from, std::string to) {
  return [=](TestInput& input) { input.replace(file, from, to); };
}

void expectFaults(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    TestInput input;
    c.spoil(input);
    EXPECT_EQ(input.faults(), c.expected) << c.what;
  }
}

TEST(InputFaults, Files) {
  expectFaults({
      {"missing file",
       [](TestInput& input) { input.files.erase("deaths.csv"); },
       {"deaths.csv: the file is missing; add it to the input folder"}},
      {"missing settings",
       [](TestInput& input) { input.files.erase("study.toml"); },
       {"study.toml: the file is missing; add it to the input folder"}},
      {"missing causes",
       [](TestInput& input) { input.files.erase("causes.csv"); },
       {"causes.csv: the file is missing; add it to the input folder"}},
      {"missing population",
       [](TestInput& input) { input.files.erase("population.csv"); },
       {"population.csv: the file is missing; add it to the input folder"}},
      {"missing standard",
       [](TestInput& input) { input.files.erase("standard.csv"); },
       {"standard.csv: the file is missing; add it to the input folder"}},
      {"a folder in the place of a file",
       [](TestInput& input) {
         input.files.erase("deaths.csv");
         std::filesystem::create_directory(input.folder() / "deaths.csv");
       },
       {"deaths.csv: the file cannot be read; check its permissions"}},
      {"not UTF-8",
       replacing("population.csv", "Ñora", "\xD1ora"),
       {"population.csv:10: the text is not UTF-8; save the file with the encoding UTF-8"}},
      {"overlong UTF-8",
       replacing("deaths.csv", "Nava",
                 "\xC1\x8E"
                 "ava"),
       {"deaths.csv:2: the text is not UTF-8; save the file with the encoding UTF-8"}},
  });
}

TEST(InputFaults, AMissingFolderIsTold) {
  try {
    (void)readInput("/no such folder", {});
    FAIL();
  } catch (const StudyError& error) {
    EXPECT_STREQ(error.what(), "/no such folder: there is no such folder; give the folder that holds study.toml");
  }
}

TEST(InputFaults, Columns) {
  expectFaults({
      {"missing column",
       replacing("deaths.csv", ",cause,count", ",count"),
       {"deaths.csv:1: the column \"cause\" is missing; add it, with its name in the first line"}},
      {"misspelt column",
       replacing("deaths.csv", ",cause,count", ",Causa,count"),
       {"deaths.csv:1: the column \"Causa\" is not known; remove it, or correct its name to one of: year, zone, sex, "
        "age_group, cause, count",
        "deaths.csv:1: the column \"cause\" is missing; add it, with its name in the first line"}},
      {"double column",
       [](TestInput& input) { input.files["standard.csv"] = "age_group,weight,Weight\n0,1,1\n1+,2,2\n"; },
       {"standard.csv:1: the column \"Weight\" is there twice; remove one of the two",
        "study.toml:4: the age group \"1 y más\" of the standard population \"standard.csv\" is divided by the age "
        "groups "
        "of population.csv; let each age group of population.csv be one of the standard's or several together"}},
      {"empty file",
       [](TestInput& input) { input.files["standard.csv"] = ""; },
       {"standard.csv:1: the column \"age_group\" is missing; add it, with its name in the first line",
        "standard.csv:1: the column \"weight\" is missing; add it, with its name in the first line"}},
      {"tabs",
       [](TestInput& input) {
         std::string& deaths = input.files["deaths.csv"];
         std::replace(deaths.begin(), deaths.end(), ',', '\t');
       },
       {"deaths.csv:1: the columns are separated by tabs; save the file with commas or semicolons between the fields"}},
      {"rows of nothing", [](TestInput& input) { input.files["deaths.csv"] += ",,,,,\n   \n \t,,\n"; }, {}},
      {"a file in other case",
       [](TestInput& input) {
         input.files["Deaths.CSV"] = input.files["deaths.csv"];
         input.files.erase("deaths.csv");
       },
       {}},
      {"lines that end in CR",
       [](TestInput& input) {
         std::string& deaths = input.files["deaths.csv"];
         std::replace(deaths.begin(), deaths.end(), '\n', '\r');
         input.replace("deaths.csv", "mama,2", "\"mama\",\"2\rx\"");
         input.replace("deaths.csv", "infarto,7", "infarto,x");
       },
       {"deaths.csv:3: the count \"2?x\" is no number; write it in digits",
        "deaths.csv:7: the count \"x\" is no number; write it in digits"}},
      {"letters of another encoding below lines that end in CR",
       [](TestInput& input) {
         std::string& deaths = input.files["deaths.csv"];
         std::replace(deaths.begin(), deaths.end(), '\n', '\r');
         input.replace("deaths.csv", "Ñora", "\xD1ora");
       },
       {"deaths.csv:4: the text is not UTF-8; save the file with the encoding UTF-8"}},
      {"too many fields",
       replacing("deaths.csv", "prostata,3", "prostata,3,0"),
       {"deaths.csv:2: the row has 7 fields, but the first line has 6 fields; give every column one field; put fields "
        "that hold a \",\" in quotes"}},
      {"too few fields",
       replacing("deaths.csv", "2001,Rubio,Hombres,65 y más,infarto,7", "2001"),
       {"deaths.csv:6: the row has 1 field, but the first line has 6 fields; give every column one field; put fields "
        "that hold a \",\" in quotes"}},
      {"unclosed quote",
       replacing("deaths.csv", "Ñora,Hombres", "\"Ñora,Hombres"),
       {"deaths.csv:4: a quote is opened here and never closed; close it; a quote inside a field in quotes is written "
        "twice"}},
      {"text after a quote",
       replacing("deaths.csv", "Ñora,Hombres", "\"Ñora\" del Río,Hombres"),
       {"deaths.csv:4: text follows the closing quote of a field; put the whole field in quotes; a quote inside it is "
        "written twice"}},
  });
}

TEST(InputFaults, Numbers) {
  expectFaults({
      {"not a number",
       replacing("deaths.csv", "prostata,3", "prostata,tres"),
       {"deaths.csv:2: the count \"tres\" is no number; write it in digits"}},
      {"nothing",
       replacing("deaths.csv", "prostata,3", "prostata,"),
       {"deaths.csv:2: the count \"\" is no number; write it in digits"}},
      {"negative",
       replacing("population.csv", ",1000\n", ",-5\n"),
       {"population.csv:2: the number of persons \"-5\" is negative; give 0 or more"}},
      {"fractional",
       replacing("population.csv", ",1000\n", ",12.5\n"),
       {"population.csv:2: the number of persons \"12.5\" is no whole number; give a whole number, without a decimal "
        "sign and without signs between thousands"}},
      {"thousands",
       replacing("population.csv", ",1000\n", ",1.000\n"),
       {"population.csv:2: the number of persons \"1.000\" is no whole number; give a whole number, without a decimal "
        "sign and without signs between thousands"}},
      {"too large",
       replacing("population.csv", ",1000\n", ",10000001\n"),
       {"population.csv:2: the number of persons \"10000001\" is too large; give one of at most 10000000"}},
      {"beyond all numbers",
       replacing("population.csv", ",1000\n", ",99999999999999999999\n"),
       {"population.csv:2: the number of persons \"99999999999999999999\" is too large; give one of at most "
        "10000000"}},
      {"a year in words",
       replacing("deaths.csv", "1999,Nava", "MCMXCIX,Nava"),
       {"deaths.csv:2: the year \"MCMXCIX\" is no number; write it in digits"}},
      {"a weight in words",
       replacing("standard.csv", "1,5", "mucho"),
       {"standard.csv:2: the weight \"mucho\" is no number; write it in digits"}},
      {"a negative weight",
       replacing("standard.csv", "1,5", "-1,5"),
       {"standard.csv:2: the weight \"-1,5\" is negative; give 0 or more"}},
  });
}

TEST(InputFaults, CountsThatSumTooHigh) {
  TestInput input;
  std::string& deaths = input.files["deaths.csv"];
  deaths = "year,zone,sex,age_group,cause,count\n";
  std::size_t rows = 0;
  for (const std::string& zone : kTestZones) {
    for (const char* age : {"0", "1-14", "15-64", "65+"}) {
      for (const char* cause :
           {"colon", "estomago", "mama", "pulmon", "cerebro", "infarto", "epoc", "neumonia", "trafico"}) {
        deaths += "1999," + zone + ",Hombres," + age + "," + cause + ",10000000\n";
        ++rows;
      }
    }
  }
  ASSERT_GT(rows, 200U);
  EXPECT_EQ(input.faults(),
            Texts{"deaths.csv:202: up to here, a year's counts sum to more than 2000000000; check the counts"});
}

TEST(InputFaults, Names) {
  expectFaults({
      {"unknown zone",
       replacing("deaths.csv", "Nava", "Naba"),
       {"deaths.csv:2: the zone \"Naba\" is not in zones.geojson; correct it, or add the zone to zones.geojson"}},
      {"a zone in other letters",
       replacing("deaths.csv", "Ñora", "ÑORA"),
       {"deaths.csv:4: the zone \"ÑORA\" is not in zones.geojson; write it \"Ñora\" as there"}},
      {"unknown sex",
       replacing("deaths.csv", "Hombres", "Hombre"),
       {"deaths.csv:2: there is no sex \"Hombre\"; write \"Hombres\" or \"Mujeres\""}},
      {"both sexes",
       replacing("deaths.csv", "Hombres", "Ambos sexos"),
       {"deaths.csv:2: there is no sex \"Ambos sexos\"; write \"Hombres\" or \"Mujeres\""}},
      {"unknown age group",
       replacing("deaths.csv", "65+", "65-69"),
       {"deaths.csv:2: \"65-69\" is none of the age groups of population.csv; use the same age groups in both files"}},
      {"unknown cause",
       replacing("deaths.csv", "prostata", "C61"),
       {"deaths.csv:2: the cause \"C61\" is in no sums of causes.csv; correct it, or name it in the sums of its causes "
        "there"}},
      {"unknown year",
       replacing("deaths.csv", "1999,Nava", "2000,Nava"),
       {"deaths.csv:2: the year 2000 is none of the settings' years; correct it, remove the row, or add the year to "
        "\"years\" in study.toml"}},
      {"several in one row",
       replacing("deaths.csv", "1999,Nava,Hombres,65+,prostata,3", "2000,Naba,H,x,y,-1"),
       {"deaths.csv:2: the year 2000 is none of the settings' years; correct it, remove the row, or add the year to "
        "\"years\" in study.toml",
        "deaths.csv:2: the zone \"Naba\" is not in zones.geojson; correct it, or add the zone to zones.geojson",
        "deaths.csv:2: there is no sex \"H\"; write \"Hombres\" or \"Mujeres\"",
        "deaths.csv:2: \"x\" is none of the age groups of population.csv; use the same age groups in both files",
        "deaths.csv:2: the cause \"y\" is in no sums of causes.csv; correct it, or name it in the sums of its causes "
        "there",
        "deaths.csv:2: the count \"-1\" is negative; give 0 or more"}},
  });
}

TEST(InputFaults, Counts) {
  expectFaults({
      {"a row of deaths twice",
       [](TestInput& input) { input.files["deaths.csv"] += "1999,Nava,Hombres,65 y más,prostata,1\n"; },
       {"deaths.csv:7: the row gives the same as line 2; remove one of the two"}},
      {"a row of persons twice",
       [](TestInput& input) { input.files["population.csv"] += "1999,Nava,Hombres,0,1000\n1999,Nava,Hombres,0,9\n"; },
       {"population.csv:98: the row gives the same as line 2 (in 2 rows, of which this is the first); remove one of "
        "the "
        "two"}},
      {"a death that cannot be",
       replacing("deaths.csv", "Hombres,65+,prostata", "Mujeres,65+,prostata"),
       {"deaths.csv:2: Mujeres cannot die of \"prostata\", which \"Tumor maligno de la próstata\" sums in causes.csv; "
        "correct the row's sex or cause, or the sex of the cause in causes.csv"}},
      {"no such death", replacing("deaths.csv", "Hombres,65+,prostata,3", "Mujeres,65+,prostata,0"), {}},
      {"deaths where nobody lives",
       [](TestInput& input) {
         for (const char* persons :
              {"Nava,Mujeres,0,1001", "Nava,Mujeres,1-14,1101", "Nava,Mujeres,15-64,1201", "Nava,Mujeres,65+,1301"}) {
           const std::string row = persons;
           input.replace("population.csv", row, row.substr(0, row.rfind(',')) + ",0");
         }
       },
       {"deaths.csv:3: the zone \"Nava\" (1999, Mujeres) has deaths, but no person in population.csv; correct "
        "whichever is wrong; where somebody died, at least one person lived"}},
      {"deaths in an age group where nobody lives",
       [](TestInput& input) {
         input.replace("population.csv", "1999,Nava,Hombres,65+,1300", "1999,Nava,Hombres,65+,0");
         input.files["deaths.csv"] += "1999,Nava,Hombres,65+,colon,2\n";
       },
       {"deaths.csv:2: the zone \"Nava\" (1999, Hombres) has deaths in the age groups \"65 y más\", but no person of "
        "that age in population.csv; correct whichever is wrong; where somebody died, at least one person lived"}},
      {"no deaths at all",
       [](TestInput& input) { input.files["deaths.csv"] = "year,zone,sex,age_group,cause,count\n"; },
       {"deaths.csv:1: the file has no row below its first line; give the deaths"}},
      {"missing age group",
       [](TestInput& input) {
         input.removeLine("population.csv", 5);
         input.removeLine("population.csv", 3);
       },
       {"population.csv: the population of the zone \"Nava\" (1999, Hombres) lacks the age groups \"1-14\", "
        "\"65 y más\"; add a row for each, with 0 where there are no persons"}},
      {"missing sex of a year",
       [](TestInput& input) {
         for (int i = 0; i < 4; ++i) input.removeLine("population.csv", 18);
       },
       {"population.csv: there is no population of the zone \"Olmo\" (1999, Hombres); add its rows"}},
      {"missing zone",
       [](TestInput& input) {
         for (int i = 0; i < 8; ++i) input.removeLine("population.csv", 26);
         for (int i = 0; i < 8; ++i) input.removeLine("population.csv", 66);
       },
       {"population.csv: there is no population of the zone \"Pinar\" of zones.geojson; add its rows"}},
  });
}

TEST(InputFaults, AgeGroups) {
  const auto overlapping = [](TestInput& input) { input.files["population.csv"] += "1999,Nava,Hombres,60+,5\n"; };
  expectFaults({
      {"no age group",
       replacing("population.csv", "Nava,Hombres,0,", "Nava,Hombres,niños,"),
       {"population.csv: the population of the zone \"Nava\" (1999, Hombres) lacks the age groups \"0\"; add a row for "
        "each, with 0 where there are no persons",
        "population.csv:2: \"niños\" is no age group; write it as 0, 1-4 or 85+, in completed years"}},
      {"overlap",
       overlapping,
       {"population.csv:98: the age groups \"15-64\" and \"60 y más\" overlap; use one division into age groups "
        "throughout",
        "population.csv:98: the age groups \"60 y más\" and \"65 y más\" overlap; use one division into age groups "
        "throughout"}},
      {"overlap in the standard",
       replacing("standard.csv", "1-14", "0-14"),
       {"standard.csv:3: the age groups \"0\" and \"0-14\" overlap; use one division into age groups throughout"}},
      {"gap in the standard",
       replacing("standard.csv", "1-14", "1-9"),
       {"standard.csv: no age group holds the ages 10-14; give rows of every age"}},
      {"no newborns",
       replacing("standard.csv", "0;1,5\n", ""),
       {"standard.csv: no age group holds the age 0; give rows of every age"}},
      {"no old ones",
       replacing("standard.csv", "65+;18,5\n", ""),
       {"standard.csv: no age group holds the ages from 65 on; add an open group, as \"65+\""}},
      {"twice in the standard",
       replacing("standard.csv", "65+;18,5\n", "65+;18,5\n65 y más;18,5\n"),
       {"standard.csv:6: the row gives the same as line 5; remove one of the two"}},
      {"no age group in the standard",
       replacing("standard.csv", "1-14", "jóvenes"),
       {"standard.csv:3: \"jóvenes\" is no age group; write it as 0, 1-4 or 85+, in completed years"}},
      {"no weight",
       [](TestInput& input) { input.files["standard.csv"] = "age_group,weight\n0-14,0\n15+,0\n"; },
       {"standard.csv: no weight is above 0; give each age group its weight"}},
      {"a standard of other groups",
       [](TestInput& input) { input.files["standard.csv"] = "age_group,weight\n0-14,1\n15-64,2\n65+,3\n"; },
       {"study.toml:4: the age group \"0-14\" of the standard population \"standard.csv\" is divided by the age groups "
        "of population.csv; let each age group of population.csv be one of the standard's or several together"}},
  });
}

}  // namespace
}  // namespace study
