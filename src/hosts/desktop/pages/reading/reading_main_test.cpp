#include <gtest/gtest.h>

#include <QGuiApplication>

// The toolkit's documents, in which the tests look at what was read, need fonts.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
