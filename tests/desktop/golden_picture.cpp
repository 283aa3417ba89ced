#include "golden_picture.h"

#include <QApplication>
#include <cmath>
#include <filesystem>

#include "golden_file.h"
#include "hosts/desktop/screen_picture.h"
#include "hosts/desktop/user_hands.h"

namespace pictures {
namespace {

namespace fs = std::filesystem;

// Pictures of each scale lie in a folder of their own.
fs::path goldenFolder() {
  return fs::path(VELDORIA_PICTURES) / std::to_string(static_cast<int>(std::lround(screenScale() * 100)));
}

}  // namespace

double screenScale() { return qApp->devicePixelRatio(); }

std::string sizeName(QSize size) { return std::to_string(size.width()) + "x" + std::to_string(size.height()); }

void expectScreen(const std::string& name) {
  desktop::hands::settle();
  expectPicture(desktop::pictureOfScreen(), goldenFolder() / (name + ".png"));
}

}  // namespace pictures
