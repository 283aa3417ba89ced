#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <array>
#include <cstdlib>
#include <deque>
#include <map>
#include <memory>
#include <string>

#include "atlas/shell/frm_principal.h"
#include "dialog_user.h"
#include "hosts/desktop/desktop_program.h"
#include "motor/window/legend_window.h"
#include "motor/window/map_widget.h"
#include "random_hands.h"
#include "scenario.h"

// A monkey at the mouse and the keyboard of the desktop program, off-screen. VELDORIA_MONKEY_EVENTS and
// VELDORIA_MONKEY_SEED in the environment say how long, and which way.
namespace {

constexpr std::uint64_t kEvents = 2000;
constexpr std::uint64_t kSeed = 1999;
constexpr std::size_t kRemembered = 60;  // events that are told of with a failure

std::uint64_t number(const char* variable, std::uint64_t otherwise) {
  const char* value = std::getenv(variable);
  return value == nullptr ? otherwise : std::strtoull(value, nullptr, 10);
}

// What the toolkit has warned of; what an off-screen platform cannot do does not count.
std::vector<std::string>& warnings() {
  static std::vector<std::string> all;
  return all;
}

void noteWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  if (text.startsWith(QStringLiteral("This plugin does not support"))) return;
  warnings().push_back(text.toStdString());
}

// No program of the machine is started.
struct NoPrograms : desktop::DesktopPrograms {
  [[nodiscard]] bool has(desktop::Stand /*stand*/) const override { return true; }
  bool open(const std::string& file) override { return !file.empty(); }
};

template <class Widget>
int visibleOnes() {
  int count = 0;
  for (const QWidget* each : QApplication::allWidgets()) {
    if (dynamic_cast<const Widget*>(each) != nullptr && each->isVisible()) ++count;
  }
  return count;
}

class WidgetMonkey : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const Qt::UIEffect effect : {Qt::UI_AnimateCombo, Qt::UI_AnimateMenu, Qt::UI_FadeMenu}) {
      QApplication::setEffectEnabled(effect, false);
    }
    before_ = qInstallMessageHandler(noteWarning);
    warnings().clear();
  }
  void TearDown() override { qInstallMessageHandler(before_); }

  void start() {
    end();
    program_ = std::make_unique<desktop::DesktopProgram>(study_.folder(), programs_);
    program_->host().setFirstSize({1024, 768});
    program_->calls().failed = [this](const std::string& failure) { untrapped_ = failure; };
    program_->start();
    ++lives_;
  }

  void end() {
    program_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void note(const std::string& event) {
    ++done_[event.substr(0, event.find(' '))];
    log_.push_back(event);
    if (log_.size() > kRemembered) log_.pop_front();
  }

  // What is wrong; "" when nothing is.
  [[nodiscard]] std::string complaint() {
    if (!warnings().empty()) return "the toolkit warns: " + warnings().front();
    if (!untrapped_.empty()) return "a failure left the program: " + untrapped_;
    if (const QWidget* modal = QApplication::activeModalWidget()) return "still open: " + monkey::nameOf(*modal);
    if (program_->calls().isBusy()) return "the program is still busy";
    if (visibleOnes<motor::MapWidget>() > 1) return "more than one map is seen";
    if (visibleOnes<motor::LegendWindow>() > 1) return "more than one legend is seen";
    return "";
  }

  // Where the program is.
  void noteTab() {
    for (const forms::Form* form : program_->atlas().forms()) {
      const auto* main = dynamic_cast<const atlas::FrmPrincipal*>(form);
      if (main != nullptr && main->isLoaded()) ++eventsOnTab_[static_cast<std::size_t>(main->Ficha.tab())];
    }
  }

  [[nodiscard]] std::string log() const {
    std::string text;
    for (const std::string& event : log_) text += event + "\n";
    return text;
  }

  scenarios::Study study_;
  scenarios::InFolder here_{study_.folder()};
  NoPrograms programs_;
  std::unique_ptr<desktop::DesktopProgram> program_;
  QtMessageHandler before_ = nullptr;
  std::string untrapped_;
  std::deque<std::string> log_;
  // What was done, for a look at whether the monkey gets around.
  int lives_ = 0;
  std::map<std::string, std::uint64_t> done_;
  std::array<std::uint64_t, 4> eventsOnTab_{};
};

TEST_F(WidgetMonkey, BreaksNothing) {
  const std::uint64_t seed = number("VELDORIA_MONKEY_SEED", kSeed);
  const std::uint64_t events = number("VELDORIA_MONKEY_EVENTS", kEvents);
  monkey::RandomHands hands(seed);
  monkey::DialogUser dialogs(seed, study_.folder());
  start();
  for (std::uint64_t i = 0; i < events; ++i) {
    note(hands.act());
    static_cast<void>(QTest::qWaitFor([] { return QApplication::activeModalWidget() == nullptr; }));
    for (const std::string& closed : dialogs.takeLog()) note(closed);
    ASSERT_EQ(complaint(), "") << "seed " << seed << ", event " << i + 1 << ", the last of\n" << log();
    noteTab();
    if (program_->isOver()) start();
  }
  end();
  EXPECT_TRUE(QApplication::topLevelWidgets().empty()) << monkey::nameOf(*QApplication::topLevelWidgets().front());
  EXPECT_GT(lives_, 2);
  for (const std::uint64_t onTab : eventsOnTab_) EXPECT_GT(onTab, 0U);
  for (const char* deed : {"click", "double", "right", "drag", "move", "wheel", "key", "type", "focus", "resize",
                           "minimize", "close", "closes"}) {
    EXPECT_GE(done_[deed], 1U) << deed;
  }
  for (const auto& [deed, times] : done_) RecordProperty(deed, std::to_string(times));
}

}  // namespace
