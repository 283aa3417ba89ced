#include <gtest/gtest.h>

#include <filesystem>

#include "sample_study.h"

namespace studytest {
namespace {

namespace fs = std::filesystem;

// What the builder made; the sample's folder holds the program too.
struct Extent {
  std::uintmax_t bytes = 0;
  std::size_t files = 0;
  std::size_t workspaces = 0;
  std::size_t catalogue = 0;
};

Extent extentOfSample() {
  Extent extent;
  const fs::path sample = scenarios::sampleStudy();
  for (const char* folder : {"Tablas", "Archivos", "Ayuda"}) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(sample / folder)) {
      if (!entry.is_regular_file()) continue;
      extent.bytes += entry.file_size();
      ++extent.files;
      if (entry.path().extension() != ".wor") continue;
      ++extent.workspaces;
      extent.catalogue += entry.path().string().starts_with((sample / "Tablas/Tematicos").string()) ? 1 : 0;
    }
  }
  return extent;
}

TEST(SampleStudy, IsNoLargerThanItMayBe) {
  const Extent extent = extentOfSample();
  EXPECT_GT(extent.files, 10'000U);
  EXPECT_GT(extent.bytes, 10'000'000U);
  EXPECT_LT(extent.bytes, 150'000'000U);
}

TEST(SampleStudy, HasAWorkspaceForEveryChoice) {
  const Extent extent = extentOfSample();
  EXPECT_EQ(extent.catalogue, 2400U);
  EXPECT_EQ(extent.workspaces, 2400U + 5U) << "four years and the statistics";
}

}  // namespace
}  // namespace studytest
