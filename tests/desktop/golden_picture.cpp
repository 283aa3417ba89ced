#include "golden_picture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <cmath>
#include <cstdlib>
#include <filesystem>

#include "hosts/desktop/screen_picture.h"
#include "hosts/desktop/user_hands.h"
#include "picture_comparison.h"

namespace pictures {
namespace {

namespace fs = std::filesystem;

constexpr int kShadeStep = 5;  // of 255: much less than the comparison lets pass

// Pictures of each scale lie in a folder of their own.
fs::path goldenFolder() {
  return fs::path(VELDORIA_PICTURES) / std::to_string(static_cast<int>(std::lround(screenScale() * 100)));
}

}  // namespace

double screenScale() { return qApp->devicePixelRatio(); }

std::string sizeName(QSize size) { return std::to_string(size.width()) + "x" + std::to_string(size.height()); }

void expectScreen(const std::string& name) {
  desktop::hands::settle();
  const QImage actual = desktop::pictureOfScreen();
  const fs::path golden = goldenFolder() / (name + ".png");
  if (std::getenv("VELDORIA_UPDATE_GOLDEN") != nullptr) {
    fs::create_directories(golden.parent_path());
    ASSERT_TRUE(desktop::writeSmall(actual, QString::fromStdString(golden.string()), kShadeStep)) << golden;
    return;
  }
  const QImage expected(QString::fromStdString(golden.string()));
  ASSERT_FALSE(expected.isNull()) << "no picture " << golden;
  const Tolerance tolerance;
  const Difference difference = compare(expected, actual, tolerance);
  if (difference.share <= tolerance.share) return;
  actual.save(QString::fromStdString(name + ".png"));
  difference.map.save(QString::fromStdString(name + "-difference.png"));
  ADD_FAILURE() << name << ": " << difference.share * 100 << " % of the pixels are others; see " << fs::current_path();
}

}  // namespace pictures
