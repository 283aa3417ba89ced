#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "motor/session/map_window.h"
#include "motor/session/window_port.h"
#include "platform/map_engine.h"

namespace motor {

class SessionState;

struct SessionOptions {
  // Tables named by a workspace are only read from below these folders (machine paths).
  std::vector<std::filesystem::path> roots;
  // The decimal and thousands signs of FormatNumber$.
  std::string decimalSign = ",";
  std::string thousandsSign = ".";
};

// One engine session: open tables, cursors, Selection and queries, map windows, menus, tool buttons, the callback
// object. It reads tables and workspaces, and writes nothing.
class Session : public platform::MapEngine {
 public:
  // `windows` outlives the session.
  Session(WindowPort& windows, SessionOptions options);
  ~Session() override;
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // The three operations of the engine port. What the engine rejects fails with -2147352567 and a description with
  // line, column and word, or with the engine's own message. Several statements are all parsed before the first is run.
  void run(const std::string& statements) override;
  [[nodiscard]] platform::Variant eval(const std::string& expression) override;
  void setCallback(std::shared_ptr<platform::CallbackObject> callback) override;

  // The map windows in opening order.
  [[nodiscard]] std::vector<MapWindow*> mapWindows() const;

 private:
  std::unique_ptr<SessionState> state_;
};

// Creates sessions under the program id "MapInfo.runtime"; another program id fails with 429.
class SessionService : public platform::MapEngines {
 public:
  SessionService(WindowPort& windows, SessionOptions options);
  [[nodiscard]] std::shared_ptr<platform::MapEngine> create(const std::string& programId) override;
  // The session created last that is still alive, or null.
  [[nodiscard]] std::shared_ptr<Session> current() const;

 private:
  WindowPort& windows_;
  SessionOptions options_;
  std::weak_ptr<Session> current_;
};

}  // namespace motor
