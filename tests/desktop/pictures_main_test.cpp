#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/screen_picture.h"

// One toolkit application for all tests of this program, on a screen of the size and scale that most of its pictures
// are for.
namespace {

constexpr QSize kScreen(1920, 1080);

class Application : public ::testing::Environment {
 public:
  void SetUp() override {
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
    screen_ = std::make_unique<desktop::UnseenScreen>(kScreen, scale > 0 ? scale : 1);
    application_ = std::make_unique<QApplication>(argc_, argv_);
    desktop::prepareApplication(*application_);
  }
  void TearDown() override {
    application_.reset();
    screen_.reset();
  }

 private:
  int argc_ = 1;
  char name_[9] = "pictures";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<desktop::UnseenScreen> screen_;
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const ::testing::Environment* const environment =
    ::testing::AddGlobalTestEnvironment(new Application);  // which gtest deletes

}  // namespace
