#include <gtest/gtest.h>

#include <QGuiApplication>
#include <memory>

#include "study/reports/offscreen_toolkit.h"

namespace study::reports {
namespace {

// All tests of this program measure or paint.
class ToolkitEnvironment : public testing::Environment {
 public:
  void SetUp() override { toolkit_ = std::make_unique<OffscreenToolkit>(); }
  void TearDown() override { toolkit_.reset(); }

 private:
  std::unique_ptr<OffscreenToolkit> toolkit_;
};
const testing::Environment* const kEnvironment = testing::AddGlobalTestEnvironment(new ToolkitEnvironment);

TEST(OffscreenToolkit, MakesAnApplicationWithoutAScreenAndUsesTheOneThereIs) {
  ASSERT_NE(kEnvironment, nullptr);
  QCoreApplication* const application = QCoreApplication::instance();
  ASSERT_NE(application, nullptr);
  EXPECT_EQ(QGuiApplication::platformName(), "offscreen");
  { const OffscreenToolkit second; }
  EXPECT_EQ(QCoreApplication::instance(), application);
}

}  // namespace
}  // namespace study::reports
