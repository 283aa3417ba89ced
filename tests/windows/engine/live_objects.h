#pragma once

namespace testengine {

// How many objects of the test engine others hold in this process.
[[nodiscard]] long liveObjects();

// The handles of the system that this process holds.
[[nodiscard]] long openHandles();

// The blocks of memory in use on all heaps of this process: its own, the system's texts and objects.
[[nodiscard]] long memoryBlocks();

// One of them, as long as it lives.
class LiveObject {
 public:
  LiveObject();
  ~LiveObject();
  LiveObject(const LiveObject&) = delete;
  LiveObject& operator=(const LiveObject&) = delete;
};

}  // namespace testengine
