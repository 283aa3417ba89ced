#include "study/command_line.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <sstream>

#include "study/output/test_folder.h"
#include "study/testing_builds.h"

namespace study {
namespace {

TEST(CommandLine, WithoutArgumentsOrAskedForHelpPrintsItsUsage) {
  const std::vector<std::vector<std::string>> questions{
      {}, {"--help"}, {"generate", "--help"}, {"sample", "a", "--help"}};
  for (const auto& question : questions) {
    const ProgramRun usage = runStudy(question);
    EXPECT_EQ(usage.code, 0);
    EXPECT_EQ(usage.err, "");
    for (const char* line : {"usage: study build INPUT OUTPUT\n", "study sample OUTPUT\n", "study generate INPUT "}) {
      EXPECT_NE(usage.out.find(line), std::string::npos) << line;
    }
  }
  EXPECT_FALSE(std::filesystem::exists("--help"));
}

TEST(CommandLine, WrongWordsArePutRightByTheUsage) {
  const TestFolder test;
  const std::string folder = (test.path() / "new").string();
  const std::vector<std::vector<std::string>> wrong{
      {"paint", folder},
      {"Sample", folder},
      {"sample"},
      {"sample", ""},
      {"sample", folder, "more"},
      {"build"},
      {"build", folder},
      {"build", "", folder},
      {"build", folder, ""},
      {"build", folder, folder, folder},
      {"sample", "--new"},
      {"build", "-q", folder},
      {"generate", "--seed"},
      {"generate"},
      {"generate", ""},
      {"generate", folder, "--colour", "3"},
      {"generate", folder, "--zones"},
      {"generate", folder, "--zones", "nine"},
      {"generate", folder, "--zones", "9.5"},
      {"generate", folder, "--zones", "-9"},
      {"generate", folder, "--zones", ""},
      {"generate", folder, "--provinces", "3x"},
      {"generate", folder, "--vertices", " 20"},
      {"generate", folder, "--years", "1999,"},
      {"generate", folder, "--years", ""},
      {"generate", folder, "--seed", "99999999999999999999999"},
  };
  const std::string usage = runStudy({}).out;
  for (const std::vector<std::string>& arguments : wrong) {
    const ProgramRun program = runStudy(arguments);
    const std::string words = testing::PrintToString(arguments);
    EXPECT_EQ(program.code, 1) << words;
    EXPECT_EQ(program.out, "") << words;
    EXPECT_TRUE(program.err.ends_with(usage)) << words << program.err;
  }
  EXPECT_TRUE(std::filesystem::is_empty(test.path()));
}

TEST(CommandLine, TellsWhichWordIsWrong) {
  EXPECT_TRUE(runStudy({"generate", "x", "--zones", "nine"})
                  .err.starts_with("study: --zones takes a whole number, not \"nine\"\n"));
  EXPECT_TRUE(runStudy({"generate", "x", "--years", "1999,all"})
                  .err.starts_with("study: --years takes a whole number, not \"all\"\n"));
  EXPECT_TRUE(runStudy({"generate", "x", "--colour", "3"}).err.starts_with("study: there is no option --colour\n"));
  EXPECT_TRUE(runStudy({"generate", "x", "--zones"}).err.starts_with("study: --zones needs a value\n"));
}

TEST(CommandLine, RefusesSettingsThatNoRegionHas) {
  const TestFolder test;
  const std::string folder = (test.path() / "new").string();
  for (const std::vector<std::string>& setting : std::vector<std::vector<std::string>>{{"--provinces", "0"},
                                                                                       {"--provinces", "201"},
                                                                                       {"--zones", "2"},
                                                                                       {"--vertices", "3"},
                                                                                       {"--years", "1998"},
                                                                                       {"--years", "2000,1999"}}) {
    const ProgramRun program = runStudy({"generate", folder, setting[0], setting[1]});
    EXPECT_EQ(program.code, 1) << setting[0] << " " << setting[1];
    EXPECT_TRUE(program.err.starts_with("study: ")) << program.err;
  }
  EXPECT_TRUE(std::filesystem::is_empty(test.path()));
}

TEST(CommandLine, GeneratesWhatItIsTold) {
  const TestFolder test;
  const ProgramRun program = generateSmall(test.path() / "input", "2000,2002");
  EXPECT_EQ(program.code, 0) << program.err;
  EXPECT_EQ(program.err, "");
  const std::string population = bytesOf(test.path() / "input" / "population.csv");
  EXPECT_NE(population.find("\n2000,"), std::string::npos);
  EXPECT_NE(population.find("\n2002,"), std::string::npos);
  EXPECT_EQ(population.find("\n2001,"), std::string::npos);
  EXPECT_EQ(std::count(population.begin(), population.end(), '\n'), 1 + 2 * 9 * 2 * 19) << "years, zones, sexes, ages";
}

TEST(CommandLine, GeneratesIntoNoFolderThatHoldsInput) {
  const TestFolder test;
  const std::filesystem::path input = test.path() / "input";
  ASSERT_EQ(generateSmall(input, "2000").code, 0);
  const auto bytes = filesBelow(test.path());
  const ProgramRun program = generateSmall(input, "2001");
  EXPECT_EQ(program.code, 1);
  EXPECT_TRUE(program.err.starts_with("study: ")) << program.err;
  EXPECT_TRUE(filesBelow(test.path()) == bytes);
}

TEST(CommandLine, TellsItsProgress) {
  const TestFolder test;
  ASSERT_EQ(generateSmall(test.path() / "input", "2002").code, 0);
  const ProgramRun program = runStudy({"build", (test.path() / "input").string(), (test.path() / "study").string()});
  EXPECT_EQ(program.code, 0);
  EXPECT_EQ(program.err, "");
  std::size_t last = 0;
  for (const char* step :
       {"Reading the settings", "Computing the figures of all units\n", "Making the maps of 2002\n",
        "Making the statistics map\n", "Making the thematic maps of 2002\n", "Writing the statistical tables\n",
        "Writing the documents\n", "Moving the study to its place\n"}) {
    const std::size_t at = program.out.find(step, last);
    ASSERT_NE(at, std::string::npos) << step << " is not in its place in\n" << program.out;
    last = at;
  }
  EXPECT_TRUE(
      program.out.ends_with("Done: 3 provinces, 9 basic health zones in " + (test.path() / "study").string() + "\n"))
      << program.out;
}

TEST(CommandLine, BuildsIntoNoInput) {
  const TestFolder test;
  const std::string input = (test.path() / "input").string();
  ASSERT_EQ(generateSmall(input, "2002").code, 0);
  const auto before = filesBelow(test.path());
  for (const std::string& output : {input, input + "/study", test.path().string()}) {
    const ProgramRun program = runStudy({"build", input, output});
    EXPECT_EQ(program.code, 1) << output;
    EXPECT_TRUE(program.err.starts_with("study: ")) << program.err;
  }
  EXPECT_TRUE(filesBelow(test.path()) == before);
}

// A program of its own, asked to end as soon as it has told of a step: nothing is left of what it had begun.
TEST(CommandLine, EndsCleanlyWhenItIsAskedTo) {
  const TestFolder test;
  const std::string input = (test.path() / "input").string();
  ASSERT_EQ(generateSmall(input, "2002").code, 0);
  const auto before = filesBelow(test.path());
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const pid_t child = fork();
    if (child == 0) {
      // Sends itself the signal in the middle of the longest step, as a terminal would.
      class Asking : public std::stringbuf {
       public:
        explicit Asking(int number) : number_(number) {}
        int sync() override {
          if (str().find("Making the thematic maps") != std::string::npos) raise(number_);
          return 0;
        }

       private:
        int number_;
      };
      Asking buffer(signal);
      std::ostream out(&buffer);
      std::ostringstream err;
      const std::vector<std::string> arguments{"build", input, (test.path() / "study").string()};
      const int code = run(arguments, out, err);
      _exit(err.str() == "study: interrupted; nothing was written\n" ? code : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 128 + signal);
    EXPECT_TRUE(filesBelow(test.path()) == before);
    EXPECT_FALSE(std::filesystem::exists(test.path() / "study"));
  }
}

TEST(CommandLine, TellsOfInputThatIsNotThere) {
  const TestFolder test;
  const ProgramRun program = runStudy({"build", (test.path() / "nothing").string(), (test.path() / "study").string()});
  EXPECT_EQ(program.code, 1);
  EXPECT_NE(program.err.find("study.toml"), std::string::npos) << program.err;
  EXPECT_TRUE(std::filesystem::is_empty(test.path()));
}

}  // namespace
}  // namespace study
