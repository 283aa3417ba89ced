#include "hosts/desktop/pages/reading/page_pictures.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace desktop::pages {
namespace {

class PagePictures : public ::testing::Test {
 protected:
  QString save(const char* name, QSize size, const char* format) {
    QImage image(size, QImage::Format_Mono);
    image.fill(1);
    const QString file = folder.filePath(QLatin1String(name));
    EXPECT_TRUE(image.save(file, format));
    return file;
  }
  QString write(const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }
  static bool isInvisible(const QImage& image) {
    return image.size() == QSize(1, 1) && image.pixelColor(0, 0).alpha() == 0;
  }

  QTemporaryDir folder;
};

TEST_F(PagePictures, AreAsLargeAsTheZoomWantsThem) {
  const QImage image = pictureIn(save("a.png", {40, 20}, "PNG"), 2);
  EXPECT_EQ(image.size(), QSize(40, 20));
  EXPECT_EQ(image.deviceIndependentSize(), QSizeF(80, 40));
  EXPECT_FALSE(isInvisible(pictureIn(save("a.bmp", {4, 4}, "BMP"), 1)));
  EXPECT_FALSE(isInvisible(pictureIn(save("llamada.gif", {4, 4}, "PNG"), 1))) << "what it holds counts";
}

TEST_F(PagePictures, WhatIsNoneIsInvisible) {
  EXPECT_TRUE(isInvisible(pictureIn({}, 1)));
  EXPECT_TRUE(isInvisible(pictureIn(folder.filePath("nada.png"), 1)));
  EXPECT_TRUE(isInvisible(pictureIn(write("b.png", "no es nada"), 1)));
  EXPECT_TRUE(
      isInvisible(pictureIn(write("c.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"), 1)));
}

TEST_F(PagePictures, OnesThatWouldFillTheMemoryAreNotRead) {
  const QString bomb = save("bomba.png", {20'000, 20'000}, "PNG");
  EXPECT_LT(QFile(bomb).size(), 1'000'000);
  EXPECT_TRUE(isInvisible(pictureIn(bomb, 1)));
}

}  // namespace
}  // namespace desktop::pages
