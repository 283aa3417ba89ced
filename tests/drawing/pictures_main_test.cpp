#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>

// Fonts need the toolkit's application object.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  return RUN_ALL_TESTS();
}
