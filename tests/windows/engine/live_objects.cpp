#include "engine/live_objects.h"

#include <array>
#include <atomic>

#include "hosts/windows/win32/windows_h.h"

namespace testengine {
namespace {

std::atomic<long> alive = 0;

}  // namespace

long liveObjects() { return alive; }

// A process's handles are the multiples of four, given from below.
long openHandles() {
  constexpr ULONG_PTR kStep = 4;
  constexpr int kGap = 1000;  // places without a handle behind the last
  long open = 0;
  int unused = 0;
  for (ULONG_PTR place = kStep; unused < kGap; place += kStep) {
    DWORD flags = 0;
    const bool isOpen = GetHandleInformation(reinterpret_cast<HANDLE>(place), &flags) != FALSE;
    unused = isOpen ? 0 : unused + 1;
    open += isOpen ? 1 : 0;
  }
  return open;
}

long memoryBlocks() {
  std::array<HANDLE, 64> heaps{};
  const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
  long blocks = 0;
  for (DWORD i = 0; i < count && i < heaps.size(); ++i) {
    HeapLock(heaps[i]);
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heaps[i], &entry) != FALSE) blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? 1 : 0;
    HeapUnlock(heaps[i]);
  }
  return blocks;
}

LiveObject::LiveObject() { ++alive; }

LiveObject::~LiveObject() { --alive; }

}  // namespace testengine
