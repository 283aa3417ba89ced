#include "study/output/output_folder.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>

#include "study/model/study_error.h"
#include "study/output/folder_swap.h"
#include "study/output/test_folder.h"

namespace study {
namespace {

namespace fs = std::filesystem;

void writeStudy(const fs::path& draft, const std::string& contents) {
  for (const char* folder : {"Archivos", "Tablas"}) {
    fs::create_directories(draft / folder);
    writeBytes(draft / folder / "one", contents);
  }
}

void makeStudy(const fs::path& output, const std::string& contents) {
  OutputFolder folder(output);
  writeStudy(folder.openDraft(), contents);
  folder.commit();
}

// Everything below a folder but the mark, which every study has alike.
std::map<std::string, std::string> studyBelow(const fs::path& output) {
  std::map<std::string, std::string> files = filesBelow(output);
  EXPECT_EQ(files.erase(kStudyMark), 1U);
  return files;
}

std::map<std::string, std::string> studyOf(const std::string& contents) {
  return {{"Archivos/one", contents}, {"Tablas/one", contents}};
}

// What was refused, in the program's words.
template <class Action>
std::string refusal(const Action& action) {
  try {
    action();
  } catch (const StudyError& error) {
    return error.what();
  }
  return "";
}

// Runs something in a process of its own and tells how it ended.
template <class Action>
int inChild(const Action& action) {
  const pid_t child = fork();
  if (child == 0) {
    action();
    _exit(0);
  }
  int status = -1;
  waitpid(child, &status, 0);
  return status;
}

TEST(OutputFolder, IsMadeWithItsParents) {
  const TestFolder test;
  makeStudy(test.path() / "a" / "b", "1");
  EXPECT_EQ(studyBelow(test.path() / "a" / "b"), studyOf("1"));
  EXPECT_EQ(bytesOf(test.path() / "a" / "b" / kStudyMark).substr(0, 32), "Mortalidad en Veldoria 1999-2002");
}

TEST(OutputFolder, MayBeEmptyOrNamedWithASeparator) {
  const TestFolder test;
  fs::create_directories(test.path() / "out");
  makeStudy(test.path() / "out" / "", "1");
  EXPECT_EQ(bytesOf(test.path() / "out" / "Tablas" / "one"), "1");
}

TEST(OutputFolder, ReplacesAnEarlierStudyAndKeepsWhatIsNotItsOwn) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  makeStudy(output, "1");
  writeBytes(output / "Tablas" / "stale", "old");
  writeBytes(output / "program", "keep");
  makeStudy(output, "2");
  auto expected = studyOf("2");
  expected["program"] = "keep";
  EXPECT_EQ(studyBelow(output), expected);
}

TEST(OutputFolder, FilesThatAreAsTheyWereKeepTheirTime) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  makeStudy(output, "1");
  const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(24);
  fs::last_write_time(output / "Tablas" / "one", longAgo);
  fs::last_write_time(output / kStudyMark, longAgo);
  makeStudy(output, "2");
  EXPECT_NE(fs::last_write_time(output / "Tablas" / "one"), longAgo);
  EXPECT_EQ(fs::last_write_time(output / kStudyMark), longAgo);
}

// A second name of the file keeps the file itself: it is not written again.
TEST(OutputFolder, FilesThatAreAsTheyWereAreTheVerySameFiles) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  makeStudy(output, "1");
  fs::create_hard_link(output / "Tablas" / "one", test.path() / "same");
  makeStudy(output, "1");
  EXPECT_TRUE(fs::equivalent(output / "Tablas" / "one", test.path() / "same"));
  makeStudy(output, "2");
  EXPECT_FALSE(fs::equivalent(output / "Tablas" / "one", test.path() / "same"));
  EXPECT_EQ(bytesOf(test.path() / "same"), "1");
}

TEST(OutputFolder, RefusesAnyOtherFolder) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  fs::create_directories(output);
  writeBytes(output / "letter.txt", "dear");
  EXPECT_THROW(OutputFolder{output}, StudyError);
  EXPECT_EQ(filesBelow(test.path()), (std::map<std::string, std::string>{{"out/letter.txt", "dear"}}));
  EXPECT_THROW(OutputFolder{output / "letter.txt"}, StudyError);
}

// A file of the mark's name alone is nobody's permission.
TEST(OutputFolder, RefusesAFolderWithAnotherMark) {
  const TestFolder test;
  writeBytes(test.path() / kStudyMark, "Notas de mi estudio\n");
  EXPECT_NE(refusal([&] { OutputFolder{test.path()}; }).find("is no study"), std::string::npos);
}

TEST(OutputFolder, WhatIsNotCommittedLeavesNoTrace) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  makeStudy(output, "1");
  const auto before = filesBelow(test.path());
  {
    OutputFolder folder(output);
    writeBytes(folder.openDraft() / "half", "2");
  }
  EXPECT_EQ(filesBelow(test.path()), before);
  EXPECT_FALSE(fs::exists(output / kWorkFolder));
  {
    OutputFolder folder(test.path() / "a" / "b");
    writeBytes(folder.openDraft() / "half", "2");
  }
  EXPECT_FALSE(fs::exists(test.path() / "a"));
}

TEST(OutputFolder, IsNotTouchedBeforeTheDraftIsOpened) {
  const TestFolder test;
  { const OutputFolder folder(test.path() / "out"); }
  EXPECT_TRUE(fs::is_empty(test.path()));
}

// Whatever lies beside the output is not the builder's.
TEST(OutputFolder, LeavesItsNeighboursAlone) {
  const TestFolder test;
  for (const char* name : {"x.part", "x.earlier", ".estudio-en-curso"}) {
    fs::create_directories(test.path() / name);
    writeBytes(test.path() / name / "letter", "dear");
  }
  makeStudy(test.path() / "x", "1");
  makeStudy(test.path() / "x", "2");
  for (const char* name : {"x.part", "x.earlier", ".estudio-en-curso"}) {
    EXPECT_EQ(bytesOf(test.path() / name / "letter"), "dear") << name;
  }
}

TEST(OutputFolder, RefusesAWorkFolderThatIsNotItsOwn) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  makeStudy(output, "1");
  fs::create_directories(output / kWorkFolder);
  writeBytes(output / kWorkFolder / "letter", "dear");
  EXPECT_NE(refusal([&] { OutputFolder{output}; }).find("is not a folder of the study builder's"), std::string::npos);
  EXPECT_EQ(bytesOf(output / kWorkFolder / "letter"), "dear");
}

TEST(OutputFolder, RefusesAnInputThatItWouldOverwrite) {
  const TestFolder test;
  fs::create_directories(test.path() / "in" / "deep");
  fs::create_symlink(test.path() / "in", test.path() / "link");
  const auto refuses = [&](const char* output, const char* input) {
    const OutputFolder folder(test.path() / output);
    return !refusal([&] { folder.refuseInput(test.path() / input); }).empty();
  };
  fs::create_directories(test.path() / "out");
  EXPECT_TRUE(refuses("new", "new"));
  EXPECT_TRUE(refuses("new", "new/"));
  EXPECT_TRUE(refuses("out", "out/in"));
  EXPECT_TRUE(refuses("in/deep", "in"));
  EXPECT_TRUE(refuses("in/deep", "link"));
  EXPECT_FALSE(refuses("out", "in"));
  EXPECT_FALSE(refuses("in2", "in"));
}

TEST(OutputFolder, HasOneBuilderAtATime) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  OutputFolder first(output);
  (void)first.openDraft();
  const std::string told = refusal([&] { OutputFolder{output}; });
  EXPECT_NE(told.find("another study is being made"), std::string::npos) << told;
  EXPECT_TRUE(fs::exists(first.draft()));
}

// Killed while it writes, the first time and later.
TEST(OutputFolder, IsMadeAnewAfterAKill) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  const auto killed = [&] {
    return inChild([&] {
      OutputFolder folder(output);
      writeBytes(folder.openDraft() / "half", "0");
      raise(SIGKILL);
    });
  };
  for (const char* contents : {"1", "2"}) {
    const int status = killed();
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_TRUE(fs::exists(output / kWorkFolder / "nuevo" / "half"));
    makeStudy(output, contents);
    EXPECT_EQ(studyBelow(output), studyOf(contents));
  }
}

// Killed after any number of the moves that put a study in its place: the next builder finishes them, also one that is
// to do nothing else.
TEST(OutputFolder, FinishesAMoveThatWasKilled) {
  std::size_t states = 0;
  for (std::size_t moves = 0; moves <= 6; ++moves) {
    const TestFolder test;
    const fs::path output = test.path() / "out";
    makeStudy(output, "1");
    writeBytes(output / "program", "keep");
    const int status = inChild([&] {
      OutputFolder folder(output);
      writeStudy(folder.openDraft(), "2");
      writeBytes(folder.draft() / kStudyMark, bytesOf(output / kStudyMark));
      FolderSwap(output / kWorkFolder, folder.draft(), output).begin();
      std::size_t left = moves;
      for (const char* name : {"Tablas", "Archivos", kStudyMark}) {
        if (left-- == 0) raise(SIGKILL);
        fs::rename(output / name, output / kWorkFolder / "anterior" / name);
        if (left-- == 0) raise(SIGKILL);
        fs::rename(folder.draft() / name, output / name);
      }
      raise(SIGKILL);
    });
    ASSERT_TRUE(WIFSIGNALED(status));
    { const OutputFolder next(output); }
    auto expected = studyOf("2");
    expected["program"] = "keep";
    EXPECT_EQ(studyBelow(output), expected) << moves;
    EXPECT_FALSE(fs::exists(output / kWorkFolder));
    ++states;
  }
  EXPECT_EQ(states, 7U);
}

// A disk of its own in the place of the output, and one that is reached by a link; both would stop a move from beside.
class OtherDisk : public testing::Test {
 private:
  // Gives the process mounts of its own, and the right to make them.
  static bool isAlone() {
    const std::string user = std::to_string(geteuid());
    if (geteuid() == 0) return unshare(CLONE_NEWNS) == 0;
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    writeBytes("/proc/self/uid_map", user + " " + user + " 1");
    return true;
  }

 protected:
  // Runs a test's part in a process that may mount disks; false: this machine does not let it.
  template <class Action>
  static bool withDisk(const fs::path& place, const char* size, const Action& action) {
    const int status = inChild([&] {
      if (!isAlone()) _exit(2);
      const std::string options = std::string("size=") + size;
      if (mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) _exit(2);
      if (mount("none", place.c_str(), "tmpfs", 0, options.c_str()) != 0) _exit(2);
      try {
        action();
      } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
      }
      _exit(testing::Test::HasFailure() ? 1 : 0);
    });
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) != 1);
    return !WIFEXITED(status) || WEXITSTATUS(status) != 2;
  }
};

TEST_F(OtherDisk, MayBeTheOutput) {
  const TestFolder test;
  fs::create_directories(test.path() / "disk");
  fs::create_symlink(test.path() / "disk", test.path() / "link");
  const bool isTried = withDisk(test.path() / "disk", "1m", [&] {
    for (const char* output : {"disk", "link"}) {
      makeStudy(test.path() / output, output);
      EXPECT_EQ(studyBelow(test.path() / output), studyOf(output));
    }
  });
  if (!isTried) GTEST_SKIP() << "this machine lets no test mount a disk";
}

TEST_F(OtherDisk, IsFullInOwnWords) {
  const TestFolder test;
  fs::create_directories(test.path() / "disk");
  const bool isTried = withDisk(test.path() / "disk", "3m", [&] {
    makeStudy(test.path() / "disk", "1");
    OutputFolder folder(test.path() / "disk");
    EXPECT_EQ(folder.whyFull(), "");
    writeBytes(folder.openDraft() / "large", std::string(4'000'000, 'x'));
    const std::string told = folder.whyFull();
    EXPECT_NE(told.find("is full: 3 MB were written"), std::string::npos) << told;
  });
  if (!isTried) GTEST_SKIP() << "this machine lets no test mount a disk";
}

}  // namespace
}  // namespace study
