#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/drawn_size.h"
#include "hosts/desktop/screen_picture.h"

// One toolkit application for all tests of this program, on a screen of the size and scale that most of its pictures
// are for; with VELDORIA_SMALL_SCREEN on one that has no room for the program at its usual size.
namespace {

constexpr QSize kScreen(1920, 1080);
constexpr QSize kSmallScreen(800, 600);

class Application : public ::testing::Environment {
 public:
  void SetUp() override {
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
    const QSize size = qEnvironmentVariableIsSet("VELDORIA_SMALL_SCREEN") ? kSmallScreen : kScreen;
    screen_ = std::make_unique<desktop::UnseenScreen>(size, scale > 0 ? scale : 1);
    application_ = desktop::makeApplication(argc_, argv_);
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
