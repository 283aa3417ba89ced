#include "study/output/output_folder.h"

#include <gtest/gtest.h>

#include <chrono>

#include "study/model/study_error.h"
#include "study/output/test_folder.h"

namespace study {
namespace {

namespace fs = std::filesystem;

void makeStudy(const fs::path& output, const std::string& contents) {
  OutputFolder folder(output);
  fs::create_directories(folder.draft() / "Tablas");
  writeBytes(folder.draft() / "Tablas" / "one", contents);
  writeBytes(folder.draft() / kStudyMark, "mark");
  folder.commit();
}

TEST(OutputFolder, IsMadeWithItsParents) {
  const TestFolder test;
  makeStudy(test.path() / "a" / "b", "1");
  EXPECT_EQ(filesBelow(test.path()),
            (std::map<std::string, std::string>{{"a/b/Tablas/one", "1"}, {std::string("a/b/") + kStudyMark, "mark"}}));
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
  EXPECT_EQ(filesBelow(test.path()),
            (std::map<std::string, std::string>{
                {"out/Tablas/one", "2"}, {std::string("out/") + kStudyMark, "mark"}, {"out/program", "keep"}}));
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

TEST(OutputFolder, RefusesAnyOtherFolder) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  fs::create_directories(output);
  writeBytes(output / "letter.txt", "dear");
  EXPECT_THROW(OutputFolder{output}, StudyError);
  EXPECT_EQ(filesBelow(test.path()), (std::map<std::string, std::string>{{"out/letter.txt", "dear"}}));
  EXPECT_THROW(OutputFolder{output / "letter.txt"}, StudyError);
}

TEST(OutputFolder, WhatIsNotCommittedLeavesNoTrace) {
  const TestFolder test;
  const fs::path output = test.path() / "out";
  makeStudy(output, "1");
  const auto before = filesBelow(test.path());
  {
    const OutputFolder folder(output);
    writeBytes(folder.draft() / "half", "2");
  }
  EXPECT_EQ(filesBelow(test.path()), before);
  EXPECT_FALSE(fs::exists(output.string() + ".part"));
}

}  // namespace
}  // namespace study
