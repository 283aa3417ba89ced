#include "hosts/windows/com/asking_window.h"

#include "hosts/windows/win32/window_class.h"

namespace windows {
namespace {

enum class Likelihood { none, window, modalWindow, dialog };

bool isOfThisThread(HWND window) { return GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId(); }

Likelihood likelihoodOf(HWND window) {
  if (IsWindowVisible(window) == FALSE || IsWindowEnabled(window) == FALSE) return Likelihood::none;
  const HWND owner = GetWindow(window, GW_OWNER);
  const bool blocksItsOwner = owner != nullptr && IsWindowEnabled(owner) == FALSE;
  if (owner != nullptr && !blocksItsOwner && isOfThisThread(owner)) return Likelihood::none;
  if (isOfClass(window, L"#32770")) return Likelihood::dialog;
  return blocksItsOwner ? Likelihood::modalWindow : Likelihood::window;
}

struct Choice {
  HWND window = nullptr;
  Likelihood likelihood = Likelihood::none;
};

BOOL CALLBACK consider(HWND window, LPARAM choice) {
  auto& best = *reinterpret_cast<Choice*>(choice);
  if (const Likelihood likelihood = likelihoodOf(window); likelihood > best.likelihood) best = {window, likelihood};
  return TRUE;
}

}  // namespace

HWND askingWindow(DWORD thread) {
  Choice best;
  EnumThreadWindows(thread, consider, reinterpret_cast<LPARAM>(&best));
  return best.window;
}

}  // namespace windows
