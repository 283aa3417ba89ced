#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "hosts/desktop/desktop_program.h"

// One toolkit application for all tests of this program.
namespace {

class Application : public ::testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(argc_, argv_);
    desktop::prepareApplication(*application_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[8] = "desktop";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const ::testing::Environment* const environment =
    ::testing::AddGlobalTestEnvironment(new Application);  // which gtest deletes

}  // namespace
