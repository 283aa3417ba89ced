#include "hosts/windows/ports/native_messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "hosts/windows/ports/test_box_user.h"
#include "hosts/windows/test_program.h"
#include "hosts/windows/win32/window_text.h"

namespace windows {
namespace {

using platform::Button;

BOOL CALLBACK gather(HWND child, LPARAM into) {
  reinterpret_cast<std::vector<HWND>*>(into)->push_back(child);
  return TRUE;
}

// A message box as its user sees it.
struct Seen {
  std::string title;
  std::vector<std::string> texts;
  std::vector<int> buttons;
  int proposed = 0;  // the button that Enter presses
  HICON icon = nullptr;
  HWND owner = nullptr;
  bool ownerIsEnabled = true;
  bool otherIsEnabled = true;
};

class MessageBoxes : public ::testing::Test {
 protected:
  MessageBoxes() { SetActiveWindow(front); }

  [[nodiscard]] Seen lookAt(HWND box) const {
    Seen it;
    it.title = textOf(box);
    it.proposed = GetDlgCtrlID(GetFocus());
    it.owner = GetWindow(box, GW_OWNER);
    it.ownerIsEnabled = IsWindowEnabled(front) != FALSE;
    it.otherIsEnabled = IsWindowEnabled(other) != FALSE;
    std::vector<HWND> children;
    EnumChildWindows(box, gather, reinterpret_cast<LPARAM>(&children));
    for (const HWND child : children) {
      const auto code = SendMessageW(child, WM_GETDLGCODE, 0, 0);
      const bool isIcon = (code & DLGC_STATIC) != 0 && (GetWindowLongPtrW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
      if (IsWindowVisible(child) == FALSE) continue;
      if (isIcon) {
        it.icon = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
      } else if ((code & DLGC_BUTTON) != 0) {
        it.buttons.push_back(GetDlgCtrlID(child));
      } else {
        it.texts.push_back(textOf(child));
      }
    }
    std::ranges::sort(it.buttons);
    return it;
  }

  // Shows a message, which is answered by the button given.
  Button show(const std::string& text, int style, const std::string& title, int answer) {
    const testing::BoxUser user([&](HWND box) {
      seen = lookAt(box);
      testing::press(box, answer);
    });
    const Button given = messages.show(text, style, title);
    EXPECT_EQ(user.count(), 1);
    return given;
  }

  testing::Program program{testing::Program::First::selector};
  HWND front = program.window(program.form);
  HWND other = program.window(program.selector);
  NativeMessages messages{program.host};
  Seen seen;
};

struct Kind {
  int style;
  const wchar_t* icon;  // the system's; null for none
  std::vector<int> buttons;
};

// Every kind of message that the program shows.
TEST_F(MessageBoxes, HaveTheIconAndTheButtonsOfTheirStyle) {
  const std::vector<int> one{IDOK};
  const std::array kinds{
      Kind{platform::kOkOnly, nullptr, one},
      Kind{platform::kCritical, IDI_ERROR, one},
      Kind{platform::kExclamation, IDI_WARNING, one},
      Kind{platform::kInformation, IDI_INFORMATION, one},
      Kind{platform::kYesNo | platform::kQuestion, IDI_QUESTION, {IDYES, IDNO}},
  };
  for (const Kind& kind : kinds) {
    show("¿Año?", kind.style, "Mortalidad en Veldoria", kind.buttons.front());
    EXPECT_EQ(seen.icon, kind.icon == nullptr ? nullptr : LoadIconW(nullptr, kind.icon)) << kind.style;
    EXPECT_EQ(seen.buttons, kind.buttons) << kind.style;
    EXPECT_EQ(seen.proposed, kind.buttons.front()) << kind.style;
    EXPECT_EQ(seen.title, "Mortalidad en Veldoria");
    EXPECT_EQ(seen.texts, std::vector<std::string>{"¿Año?"});
  }
}

TEST_F(MessageBoxes, HaveNoTitleWhereTheyAreGivenNone) {
  show("MapInfo Proviewer no esta Instalado correctamente.", platform::kExclamation, "", IDOK);
  EXPECT_EQ(seen.title, "");
}

TEST_F(MessageBoxes, GiveTheButtonThatWasPressed) {
  constexpr int kAsk = platform::kYesNo | platform::kQuestion;
  EXPECT_EQ(show("¿Desea continuar?", kAsk, "", IDYES), Button::yes);
  EXPECT_EQ(show("¿Desea continuar?", kAsk, "", IDNO), Button::no);
  EXPECT_EQ(show("Ya está.", platform::kOkOnly, "", IDOK), Button::ok);
}

TEST_F(MessageBoxes, LieInFrontOfTheProgramWhichTakesNoInputMeanwhile) {
  show("No se encuentra el archivo.", platform::kCritical, "Mortalidad", IDOK);
  EXPECT_EQ(seen.owner, front);
  EXPECT_FALSE(seen.ownerIsEnabled);
  EXPECT_FALSE(seen.otherIsEnabled);
  EXPECT_TRUE(IsWindowEnabled(front));
  EXPECT_TRUE(IsWindowEnabled(other));
}

}  // namespace
}  // namespace windows
