#pragma once

#include <gtest/gtest.h>

#include <QTest>

#include "hosts/desktop/qt_host.h"
#include "hosts/desktop/test_form.h"
#include "hosts/desktop/user_hands.h"
#include "hosts/desktop/views/tab_row.h"

namespace desktop::testing {

using Events = std::vector<std::string>;

// The test form on the screen, in front.
class ShownForm : public ::testing::Test {
 protected:
  void SetUp() override {
    host.setFirstSize({600, 500});
    calls.run([this] { form.show(); });
    window().activateWindow();
    hands::settle();
    form.events.clear();
  }
  void TearDown() override { host.closeAll(); }

  [[nodiscard]] FormWindow& window() { return *host.windowOf(form); }
  template <class Widget = QWidget>
  [[nodiscard]] Widget& widget(const forms::Control& control) {
    auto* found = qobject_cast<Widget*>(window().viewOf(control)->widget());
    EXPECT_NE(found, nullptr) << control.name();
    return *found;
  }
  [[nodiscard]] TabRow& rowOf(const forms::TabControl& tabs) { return *widget(tabs).template findChild<TabRow*>(); }
  static void clickTab(TabRow& row, int index) {
    QTest::mouseClick(&row, Qt::LeftButton, Qt::NoModifier, row.tabRect(index).center());
    hands::settle();
  }

  screen::ProgramCalls calls;
  motor::WidgetHandles handles;
  QtHost host{calls, handles};
  TestForm form{host};
};

}  // namespace desktop::testing
