#include "ole/process_counts.h"

#include <cstddef>

#include "engine/live_objects.h"
#include "engine/orders.h"
#include "replay/engine_orders.h"

namespace wintest {
namespace {

// A row of the table of drawing objects, which every process can read.
struct DrawingObjectRow {
  void* object;
  DWORD owner;
  WORD reuse;
  WORD type;
  void* user;
};
constexpr std::size_t kDrawingObjectRows = 16384;
constexpr std::size_t kTableInProcess = 0xF8;  // of the process's environment block, in bytes

// The rows of the table that are in use.
DWORD usedDrawingObjects() {
  using CurrentBlock = const std::byte* WINAPI();
  const FARPROC function = GetProcAddress(GetModuleHandleW(L"ntdll"), "RtlGetCurrentPeb");
  const std::byte* block = reinterpret_cast<CurrentBlock*>(reinterpret_cast<void (*)()>(function))();
  const auto* table = *reinterpret_cast<const DrawingObjectRow* const*>(block + kTableInProcess);
  DWORD used = 0;
  for (std::size_t i = 0; table != nullptr && i < kDrawingObjectRows; ++i) {
    if (table[i].type != 0) ++used;
  }
  return used;
}

struct Counting {
  DWORD process;
  DWORD windows;
};

BOOL CALLBACK countWindow(HWND window, LPARAM into) {
  auto& counting = *reinterpret_cast<Counting*>(into);
  if (processOf(window) == counting.process) ++counting.windows;
  return TRUE;
}

DWORD windowsOf(DWORD process) {
  Counting counting{process, 0};
  EnumWindows(countWindow, reinterpret_cast<LPARAM>(&counting));
  for (HWND window = nullptr; (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;) {
    countWindow(window, reinterpret_cast<LPARAM>(&counting));
  }
  return counting.windows;
}

}  // namespace

DWORD processOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

ProcessCounts ProcessCounts::ofThisProcess() {
  return {.nextHandle = testengine::placeOfNextHandle(),
          .drawingObjects = usedDrawingObjects(),
          .windows = windowsOf(GetCurrentProcessId())};
}

ProcessCounts ProcessCounts::ofServer() {
  const HWND engine = engineListening();
  return {.nextHandle = SendMessageW(engine, testengine::kNextHandle, 0, 0),
          .drawingObjects = 0,
          .windows = windowsOf(processOf(engine))};
}

}  // namespace wintest
