#include "replay/dialog_user.h"

#include "hosts/windows/win32/wide_text.h"

namespace wintest {

using windows::testing::press;

namespace {

constexpr int kFileNameBox = 0x47c;  // of a save dialog

}  // namespace

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
  SetWindowTextW(name, windows::wide(*prepared).c_str());
  press(dialog, IDOK);
}

}  // namespace wintest
