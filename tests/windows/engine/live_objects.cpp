#include "engine/live_objects.h"

#include <atomic>

#include "hosts/windows/win32/handles.h"

namespace testengine {
namespace {

std::atomic<long> alive = 0;

}  // namespace

long liveObjects() { return alive; }

long placeOfNextHandle() {
  const windows::KernelHandle next(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  constexpr LONG_PTR kStep = 4;
  return static_cast<long>(reinterpret_cast<LONG_PTR>(next.get()) / kStep);
}

LiveObject::LiveObject() { ++alive; }

LiveObject::~LiveObject() { --alive; }

}  // namespace testengine
