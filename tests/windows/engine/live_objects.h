#pragma once

namespace testengine {

// How many objects of the test engine others hold in this process.
[[nodiscard]] long liveObjects();

// The place of this process's next handle; handles are given the lowest place that is free, so it rises as they are
// lost.
[[nodiscard]] long placeOfNextHandle();

// One of them, as long as it lives.
class LiveObject {
 public:
  LiveObject();
  ~LiveObject();
  LiveObject(const LiveObject&) = delete;
  LiveObject& operator=(const LiveObject&) = delete;
};

}  // namespace testengine
