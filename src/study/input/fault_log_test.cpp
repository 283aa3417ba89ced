#include "study/input/fault_log.h"

#include <algorithm>

#include "study/input/testing_input.h"

namespace study {
namespace {

using Texts = std::vector<std::string>;

TEST(FaultLog, AreCountedBeyondThoseKept) {
  TestInput input;
  for (int i = 0; i < 1000; ++i) {
    input.files["deaths.csv"] += "1999,Nadie " + std::to_string(i) + ",Hombres,65+,colon,1\n";
  }
  input.replace("deaths.csv", "prostata,3", "prostata,-3");
  try {
    (void)input.read();
    FAIL();
  } catch (const InputFaults& faults) {
    EXPECT_EQ(faults.total(), 1001U);
    EXPECT_EQ(faults.faults().size(), 51U);
    EXPECT_EQ(faults.faults().front(), (Fault{"deaths.csv", 2, "the count \"-3\" is negative", "give 0 or more"}));
    const std::string text = faults.what();
    EXPECT_TRUE(text.starts_with("deaths.csv:2: the count \"-3\" is negative; give 0 or more\ndeaths.csv:7: "));
    EXPECT_TRUE(text.ends_with("\n... and 951 more"));
  }
}

// A name that is wrong in many rows is one fault.
TEST(FaultLog, AreToldOnceForAllRowsOfOneWrongValue) {
  TestInput input;
  for (int i = 0; i < 75; ++i) input.files["deaths.csv"] += "1999,Nadie,Hombres,65+,colon,1\n";
  input.files["deaths.csv"] += "1999,Otro,Hombres,65+,colon,1\n";
  EXPECT_EQ(input.faults(),
            (Texts{"deaths.csv:7: the zone \"Nadie\" is not in zones.geojson (in 75 rows, of which this is the first); "
                   "correct it, or add the zone to zones.geojson",
                   "deaths.csv:82: the zone \"Otro\" is not in zones.geojson; correct it, or add the zone to "
                   "zones.geojson"}));
}

// However many there are of one kind, those of another kind and file are among what is printed.
TEST(FaultLog, ArePrintedOfAllKinds) {
  TestInput input;
  for (int i = 0; i < 300; ++i) {
    input.files["population.csv"] += "1999,Nadie " + std::to_string(i) + ",Hombres,0,1\n";
  }
  input.replace("deaths.csv", "prostata,3", "prostata,-3");
  try {
    (void)input.read();
    FAIL();
  } catch (const InputFaults& faults) {
    const std::string text = faults.what();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 50) << "fifty faults and how many more";
    EXPECT_NE(text.find("deaths.csv:2: the count \"-3\" is negative"), std::string::npos) << text;
    EXPECT_TRUE(text.ends_with("\n... and 251 more")) << text;
  }
}

// A file that ends anywhere is either read or told of, never anything else.
TEST(FaultLog, CutFilesAreTold) {
  for (const auto& [name, text] : TestInput().files) {
    std::size_t told = 0;
    const std::size_t step = text.size() / 40 + 1;
    for (std::size_t length = 0; length < text.size(); length += step) {
      TestInput input;
      input.files[name] = text.substr(0, length);
      told += input.faults().empty() ? 0 : 1;
    }
    EXPECT_GT(told, 0U) << name;
  }
}

TEST(FaultLog, ComeByFileAndLine) {
  TestInput input;
  input.replace("deaths.csv", "mama,2", "mama,x");
  input.replace("deaths.csv", "prostata", "C61");
  input.replace("study.toml", "\"Veldoria\"", "\"Otra\"");
  input.replace("causes.csv", ",prostata,Hombres", ",prostata,H");
  EXPECT_EQ(
      input.faults(),
      (Texts{"study.toml:2: the setting \"region\" is \"Otra\", but the program shows the region \"Veldoria\" only; "
             "write region = \"Veldoria\", or remove the line",
             "causes.csv:19: there is no sex \"H\"; write \"Hombres\", \"Mujeres\" or \"Ambos sexos\"",
             "deaths.csv:2: the cause \"C61\" is in no sums of causes.csv; correct it, or name it in the sums of "
             "its causes there",
             "deaths.csv:3: the count \"x\" is no number; write it in digits"}));
}

}  // namespace
}  // namespace study
