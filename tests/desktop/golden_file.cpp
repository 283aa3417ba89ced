#include "golden_file.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "hosts/desktop/screen_picture.h"
#include "picture_comparison.h"

namespace pictures {

namespace fs = std::filesystem;

void expectPicture(const QImage& actual, const fs::path& golden, int shadeStep) {
  if (std::getenv("VELDORIA_UPDATE_GOLDEN") != nullptr) {
    fs::create_directories(golden.parent_path());
    ASSERT_TRUE(desktop::writeSmall(actual, QString::fromStdString(golden.string()), shadeStep)) << golden;
    return;
  }
  const QImage expected(QString::fromStdString(golden.string()));
  ASSERT_FALSE(expected.isNull()) << "no picture " << golden;
  const Tolerance tolerance;
  const Difference difference = compare(expected, actual, tolerance);
  if (difference.share <= tolerance.share) return;
  const std::string name = golden.stem().string();
  actual.save(QString::fromStdString(name + ".png"));
  difference.map.save(QString::fromStdString(name + "-difference.png"));
  ADD_FAILURE() << name << ": " << difference.share * 100 << " % of the pixels are others; see " << fs::current_path();
}

}  // namespace pictures
