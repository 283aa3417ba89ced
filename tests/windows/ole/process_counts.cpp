#include "ole/process_counts.h"

#include <array>
#include <cstddef>
#include <ostream>

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
LRESULT usedDrawingObjects() {
  using CurrentBlock = const std::byte* WINAPI();
  const FARPROC function = GetProcAddress(GetModuleHandleW(L"ntdll"), "RtlGetCurrentPeb");
  const std::byte* block = reinterpret_cast<CurrentBlock*>(reinterpret_cast<void (*)()>(function))();
  const auto* table = *reinterpret_cast<const DrawingObjectRow* const*>(block + kTableInProcess);
  LRESULT used = 0;
  for (std::size_t i = 0; table != nullptr && i < kDrawingObjectRows; ++i) {
    if (table[i].type != 0) ++used;
  }
  return used;
}

// What is counted, and how much of it the system may keep.
struct Kind {
  const char* name;
  LRESULT ProcessCounts::*count;
  LRESULT kept;
};
constexpr std::array kKinds{
    Kind{"handles", &ProcessCounts::handles, 50},
    Kind{"memory blocks", &ProcessCounts::memoryBlocks, 50},
    Kind{"drawing objects", &ProcessCounts::drawingObjects, 0},
    Kind{"windows", &ProcessCounts::windows, 0},
};

struct Counting {
  DWORD process;
  LRESULT windows;
};

BOOL CALLBACK countWindow(HWND window, LPARAM into) {
  auto& counting = *reinterpret_cast<Counting*>(into);
  if (processOf(window) == counting.process) ++counting.windows;
  return TRUE;
}

LRESULT windowsOf(DWORD process) {
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
  return {.handles = testengine::openHandles(),
          .memoryBlocks = testengine::memoryBlocks(),
          .drawingObjects = usedDrawingObjects(),
          .windows = windowsOf(GetCurrentProcessId())};
}

ProcessCounts ProcessCounts::ofServer() {
  const HWND engine = engineListening();
  return {.handles = SendMessageW(engine, testengine::kOpenHandles, 0, 0),
          .memoryBlocks = SendMessageW(engine, testengine::kMemoryBlocks, 0, 0),
          .drawingObjects = 0,
          .windows = windowsOf(processOf(engine))};
}

std::string ProcessCounts::lostSince(const ProcessCounts& before) const {
  std::string lost;
  for (const Kind& kind : kKinds) {
    const LRESULT more = this->*kind.count - before.*kind.count;
    if (more > kind.kept) lost += std::to_string(more) + " " + kind.name + " more; ";
  }
  return lost;
}

std::ostream& operator<<(std::ostream& out, const ProcessCounts& counts) {
  for (const Kind& kind : kKinds)
    out << kind.name << ' ' << counts.*kind.count << (&kind == &kKinds.back() ? "" : ", ");
  return out;
}

}  // namespace wintest
