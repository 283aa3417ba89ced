#include "study/model/counts.h"

#include <gtest/gtest.h>

#include "study/model/study_error.h"

namespace study {
namespace {

constexpr const SexChoice& kBoth = kSexChoices[0];
constexpr const SexChoice& kMen = kSexChoices[1];
constexpr const SexChoice& kWomen = kSexChoices[2];

// Three age groups and two causes, every count another number.
Counts sample() {
  Counts counts(3, 2);
  for (std::size_t age = 0; age < 3; ++age) {
    const long n = static_cast<long>(age);
    counts.addPersons(Sex::men, age, 100 + n);
    counts.addPersons(Sex::women, age, 200 + n);
    for (std::size_t cause = 0; cause < 2; ++cause) {
      const long c = static_cast<long>(cause);
      counts.addDeaths(cause, Sex::men, age, 10 * c + n + 1);
      counts.addDeaths(cause, Sex::women, age, 10 * c + n + 4);
    }
  }
  return counts;
}

TEST(Counts, KeepEachNumberApart) {
  const Counts counts = sample();
  EXPECT_EQ(counts.persons(Sex::men, 2), 102);
  EXPECT_EQ(counts.persons(Sex::women, 0), 200);
  EXPECT_EQ(counts.deaths(0, Sex::men, 0), 1);
  EXPECT_EQ(counts.deaths(0, Sex::women, 2), 6);
  EXPECT_EQ(counts.deaths(1, Sex::men, 1), 12);
  EXPECT_EQ(counts.deaths(1, Sex::women, 0), 14);
}

TEST(Counts, SumOverSexesAndCauses) {
  const Counts counts = sample();
  EXPECT_EQ(counts.persons(kMen), (ByAge{100, 101, 102}));
  EXPECT_EQ(counts.persons(kWomen), (ByAge{200, 201, 202}));
  EXPECT_EQ(counts.persons(kBoth), (ByAge{300, 302, 304}));
  EXPECT_EQ(counts.deaths(kMen), (ByAge{12, 14, 16}));
  EXPECT_EQ(counts.deaths(kBoth), (ByAge{30, 34, 38}));
  EXPECT_EQ(counts.deaths(kBoth, {1}), (ByAge{25, 27, 29}));
  EXPECT_EQ(counts.deaths(kWomen, {0, 1}), counts.deaths(kWomen));
  EXPECT_EQ(counts.deaths(kWomen, {}), (ByAge{0, 0, 0}));
  EXPECT_EQ(total(counts.deaths(kBoth)), 102);
  EXPECT_EQ(total({}), 0);
}

TEST(Counts, AddUpWhenGivenInParts) {
  Counts counts = sample();
  counts.addPersons(Sex::men, 0, 7);
  counts.addDeaths(1, Sex::women, 2, 5);
  EXPECT_EQ(counts.persons(Sex::men, 0), 107);
  EXPECT_EQ(counts.deaths(1, Sex::women, 2), 21);
}

TEST(Counts, OfLargerUnitsAreSums) {
  Counts sum(3, 2);
  sum += sample();
  sum += sample();
  EXPECT_EQ(sum.persons(kBoth), (ByAge{600, 604, 608}));
  EXPECT_EQ(sum.deaths(kMen, {1}), (ByAge{22, 24, 26}));
}

TEST(Counts, RefuseNumbersThatTheyCannotHold) {
  Counts counts(1, 1);
  counts.addPersons(Sex::men, 0, 2'147'483'647);
  EXPECT_EQ(counts.persons(Sex::men, 0), 2'147'483'647);
  EXPECT_THROW(counts.addPersons(Sex::men, 0, 1), StudyError);
  EXPECT_THROW(counts.addDeaths(0, Sex::men, 0, 3'000'000'000), StudyError);
  const Counts same = counts;
  EXPECT_THROW(counts += same, StudyError);
}

}  // namespace
}  // namespace study
