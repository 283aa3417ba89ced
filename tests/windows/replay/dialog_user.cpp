#include "replay/dialog_user.h"

#include <array>
#include <chrono>
#include <vector>

#include "hosts/windows/win32/wide_text.h"

namespace wintest {
namespace {

constexpr auto kBlink = std::chrono::milliseconds(5);
constexpr UINT kPatience = 10000;    // milliseconds that a dialog's thread may take for a message
constexpr int kFileNameBox = 0x47c;  // of a save dialog

bool isDialog(HWND window) {
  std::array<wchar_t, 16> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return std::wstring_view(name.data()) == L"#32770" && IsWindowVisible(window) != 0 && IsWindowEnabled(window) != 0;
}

BOOL CALLBACK gatherDialog(HWND window, LPARAM into) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == GetCurrentProcessId() && isDialog(window)) {
    reinterpret_cast<std::vector<HWND>*>(into)->push_back(window);
  }
  return TRUE;
}

// The modal boxes of this process that wait for somebody.
std::vector<HWND> openDialogs() {
  std::vector<HWND> dialogs;
  EnumWindows(gatherDialog, reinterpret_cast<LPARAM>(&dialogs));
  return dialogs;
}

void press(HWND dialog, int button) { PostMessageW(GetDlgItem(dialog, button), BM_CLICK, 0, 0); }

}  // namespace

DialogUser::DialogUser() : thread_([this] { watch(); }) {}

DialogUser::~DialogUser() {
  {
    const std::scoped_lock lock(mutex_);
    leaving_ = true;
  }
  thread_.join();
}

void DialogUser::prepareAnswer(platform::Button button) {
  const std::scoped_lock lock(mutex_);
  answers_.prepare(button);
}

void DialogUser::prepareName(const std::string& name) {
  const std::scoped_lock lock(mutex_);
  names_.prepare(name);
}

void DialogUser::prepareCancel() {
  const std::scoped_lock lock(mutex_);
  names_.prepare(std::nullopt);
}

// Each box is answered once; a window that comes later may have the same handle.
void DialogUser::watch() {
  while (true) {
    {
      const std::scoped_lock lock(mutex_);
      if (leaving_) return;
      const std::vector<HWND> open = openDialogs();
      std::erase_if(answered_, [](HWND dialog) { return IsWindow(dialog) == 0; });
      for (const HWND dialog : open) {
        if (answered_.insert(dialog).second) answer(dialog);
      }
    }
    std::this_thread::sleep_for(kBlink);
  }
}

void DialogUser::answer(HWND dialog) {
  if (const HWND name = GetDlgItem(dialog, kFileNameBox)) return answerSaveDialog(dialog, name);
  press(dialog, buttonFor(dialog));
}

int DialogUser::buttonFor(HWND box) {
  if (const auto prepared = answers_.take()) return static_cast<int>(*prepared);
  if (GetDlgItem(box, IDYES) != nullptr) return IDYES;
  return GetDlgItem(box, IDOK) != nullptr ? IDOK : IDCANCEL;
}

void DialogUser::answerSaveDialog(HWND dialog, HWND name) {
  const auto prepared = names_.take().value_or(std::nullopt);
  if (!prepared) return press(dialog, IDCANCEL);
  DWORD_PTR ignored = 0;
  SendMessageTimeoutW(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(windows::wide(*prepared).c_str()), SMTO_NORMAL,
                      kPatience, &ignored);
  press(dialog, IDOK);
}

}  // namespace wintest
