#include "hosts/windows/windows_host.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "hosts/windows/ports/native_messages.h"
#include "hosts/windows/test_help_viewer.h"
#include "hosts/windows/test_program.h"
#include "hosts/windows/win32/window_class.h"
#include "hosts/windows/win32/window_text.h"

namespace windows {
namespace {

using Words = testing::Program::Words;

class Host : public ::testing::Test {
 protected:
  // A call into the program that takes longer than a moment, in the midst of which the user does something.
  void workWhile(const std::function<void()>& userActs) {
    constexpr DWORD kLong = 300;
    program.calls.run([&] {
      Sleep(kLong);
      userActs();
      Sleep(kLong);
    });
  }
  // Whether the window takes input again in so many milliseconds.
  bool isEnabledWithin(HWND window, ULONGLONG milliseconds) const {
    return program.becomesSo([window] { return IsWindowEnabled(window) != FALSE; }, milliseconds);
  }
  void click(HWND window) const {
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  }
  static void type(HWND window, const wchar_t* text) {
    for (; *text != L'\0'; ++text) SendMessageW(window, WM_CHAR, *text, 0);
  }

  testing::Program program;
  HWND button = program.window(program.form.button);
  HWND box = program.window(program.form.box);
};

TEST_F(Host, DropsClicksMadeWhileTheProgramDidNotAnswer) {
  workWhile([this] { click(button); });
  program.settle();
  EXPECT_EQ(program.take(), Words{});
  Sleep(100);
  click(button);
  program.settle();
  EXPECT_EQ(program.take(), Words{"clic"});
}

TEST_F(Host, TellsWhatWasTypedWhileTheProgramWasAtWork) {
  workWhile([this] { type(box, L"mar"); });
  program.settle();
  EXPECT_EQ(program.take(), Words{"texto mar"});
  EXPECT_EQ(program.form.box.text(), "mar");
  type(box, L"e");
  program.settle();
  EXPECT_EQ(program.take(), Words{"texto mare"});
}

TEST_F(Host, ShowsWhatTheProgramWroteOverWhatWasTyped) {
  workWhile([this] {
    type(box, L"mar");
    program.form.box.setText("río");
  });
  program.settle();
  EXPECT_EQ(program.take(), Words{"texto río"});
  EXPECT_EQ(textOf(box), "río");
}

TEST_F(Host, ClosesAnOpenListOfTheSelectorByEscapeAndThenTheSelector) {
  const HWND list = program.window(program.selector.list);
  SetActiveWindow(program.window(program.selector));
  SetFocus(list);
  SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
  ASSERT_NE(SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0), FALSE);
  PostMessageW(list, WM_KEYDOWN, VK_ESCAPE, 0);
  program.settle();
  EXPECT_EQ(SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0), FALSE);
  ASSERT_TRUE(program.selector.isLoaded());
  PostMessageW(list, WM_KEYDOWN, VK_ESCAPE, 0);
  program.settle();
  EXPECT_FALSE(program.selector.isLoaded());
}

TEST_F(Host, BringsAPaletteOntoTheScreenWhenItAppearsButNotFromWhereItsUserPutsIt) {
  const auto leftOfSelector = [this] {
    RECT place{};
    GetWindowRect(program.window(program.selector), &place);
    return place.left;
  };
  constexpr int kBeyondTheEdge = -40;
  SetWindowPos(program.window(program.selector), nullptr, kBeyondTheEdge, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  program.selector.show();
  EXPECT_EQ(leftOfSelector(), kBeyondTheEdge);
  program.selector.hide();
  program.selector.show();
  EXPECT_GE(leftOfSelector(), 0);
}

TEST_F(Host, ClosesAtOnceWhenTheSessionEndsAndAsksNothing) {
  SendMessageW(program.window(program.form), WM_ENDSESSION, FALSE, 0);
  EXPECT_EQ(program.take(), Words{}) << "somebody has stopped it";
  EXPECT_FALSE(program.host.isUnattended());
  SendMessageW(program.window(program.selector), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(program.take(), Words{"cierre"});
  EXPECT_FALSE(program.form.isLoaded());
  NativeMessages messages(program.host);
  EXPECT_EQ(messages.show("¿Desea continuar?", platform::kYesNo | platform::kQuestion, ""), platform::Button::no);
  EXPECT_EQ(messages.show("Ya está.", platform::kInformation, ""), platform::Button::ok);
}

TEST_F(Host, LeavesACallUnderWayToTheSystemWhenTheSessionEnds) {
  program.calls.run([this] { SendMessageW(program.window(program.form), WM_ENDSESSION, TRUE, 0); });
  program.settle();
  EXPECT_TRUE(program.form.isLoaded());
  EXPECT_TRUE(program.host.isUnattended());
}

TEST_F(Host, LetsGoOfTheHelpWhenTheWorkingWindowCloses) {
  const testing::HelpViewer viewer;
  program.selector.unload();
  EXPECT_TRUE(viewer.commands().empty()) << "who reads goes on reading";
  program.form.unload();
  EXPECT_EQ(viewer.commands(), std::vector<unsigned>{HELP_QUIT});
}

// The engine ends outside any call, while a box of its own has disabled the working window.
TEST_F(Host, TakesInputAgainWhenTheEngineHasEndedWithItsMap) {
  const HWND working = program.window(program.form);
  const HWND place = program.window(program.form.picture);
  WindowHandle map(CreateWindowExW(0, WC_STATICW, L"", WS_CHILD, 0, 0, 90, 90, place, nullptr, nullptr, nullptr));
  EnableWindow(working, FALSE);
  EXPECT_FALSE(isEnabledWithin(working, 1500)) << "the box is still there";
  map.reset();
  EXPECT_TRUE(isEnabledWithin(working, 30000));
}

// A page's own box, as that of its printing, disables the window that it lies in front of.
TEST_F(Host, TakesNoInputBeforeABoxOfAPageHasClosed) {
  const HWND working = program.window(program.form);
  WindowHandle page(
      CreateWindowExW(0, WC_STATICW, L"", WS_POPUP | WS_VISIBLE, 0, 0, 90, 90, working, nullptr, nullptr, nullptr));
  EnableWindow(working, FALSE);
  EXPECT_FALSE(isEnabledWithin(working, 1500)) << "the box is still there";
  page.reset();
  EXPECT_TRUE(isEnabledWithin(working, 30000)) << "the selector in front of it is none";
}

TEST_F(Host, TellsWhatFailsInAMessageToAForm) {
  program.host.windowOf(program.form)->sessionEnds = [] { throw std::runtime_error("en la ventana"); };
  SendMessageW(program.window(program.form), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(program.take(), Words{"fallo en la ventana"});
}

// A control whose window fails at a message.
class FailingView : public ControlView {
 public:
  static constexpr UINT kFail = WM_APP;
  FailingView(forms::Control& control, ViewContext& context, HWND parent) : ControlView(control, context, parent) {
    create(WC_STATICW, 0);
  }

 protected:
  std::optional<LRESULT> handle(UINT message, WPARAM wide, LPARAM large) override {
    if (message == kFail) throw std::runtime_error("en el control");
    return ControlView::handle(message, wide, large);
  }
};

TEST_F(Host, TellsWhatFailsInAMessageToAControl) {
  ActionQueue queue(program.calls);
  ViewContext context{.calls = program.calls, .queue = queue, .form = program.window(program.form)};
  const FailingView view(program.form.button, context, context.form);
  EXPECT_EQ(SendMessageW(view.window(), FailingView::kFail, 0, 0), 0);
  EXPECT_EQ(program.take(), Words{"fallo en el control"});
}

TEST_F(Host, TellsWhatFailsInItsQueueAndGoesOn) {
  ActionQueue queue(program.calls);
  queue.postOwn([] { throw std::runtime_error("en la cola"); });
  queue.postOwn([this] { program.noted.push_back("más"); });
  program.settle();
  EXPECT_EQ(program.take(), (Words{"fallo en la cola", "más"}));
}

}  // namespace
}  // namespace windows
