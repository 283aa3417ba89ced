#pragma once

#include <functional>
#include <string>

#include "forms/listener.h"
#include "hosts/headless/hands.h"
#include "hosts/headless/recording_engine.h"
#include "platform/ports.h"

namespace headless {

// Where the program of a replay lives: the ports and the screen of a host, the hands of its user, and what a script
// lays ready beforehand.
class World {
 public:
  virtual ~World() = default;

  [[nodiscard]] virtual platform::Ports ports() = 0;
  [[nodiscard]] virtual forms::Listener& screen() = 0;
  [[nodiscard]] virtual Hands& hands() = 0;

  // Does something with the program that is nobody's hand, such as starting it. Failures and the program's end leave it
  // as they do a hand.
  virtual void enter(const std::function<void()>& action) = 0;
  // The program is about to go: nothing of it may be shown any more.
  virtual void closeAll() = 0;

  // The engine calls the program back; false when that has no such method.
  [[nodiscard]] virtual bool callBack(RecordingEngine& engine, const std::string& method,
                                      const std::string& message) = 0;
  // The user clicks on the current engine's front map with the current tool, at a point in the session's coordinates,
  // written as numbers with ".". False when there is no map.
  [[nodiscard]] virtual bool clickMap(const std::string& x, const std::string& y) = 0;

  // What the next message box and the next save dialog are answered.
  virtual void prepareAnswer(platform::Button button) = 0;
  virtual void prepareName(const std::string& name) = 0;
  virtual void prepareCancel() = 0;
  // What the page view gives as the name of its page from now on.
  virtual void nameLocation(const std::string& name) = 0;
  // Look-ups of this path find the file from now on, under the name that the path ends in; or find none.
  virtual void putFile(const std::string& path) = 0;
  virtual void removeFile(const std::string& path) = 0;
  // Another program opens a top-level window.
  virtual void openWindow(const std::string& title) = 0;
};

}  // namespace headless
