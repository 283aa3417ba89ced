#pragma once

#include <QImage>
#include <memory>
#include <optional>

#include "hosts/headless/embedded/embedded_engine.h"
#include "motor/drawing/map_painter.h"
#include "relay/remote_windows.h"
#include "relay/runs.h"
#include "wire/conversation.h"

namespace relay {

// One engine of the other side, which asks for everything that it is asked: "do", "eval", "callback-set", what happens
// to its windows, and their pictures.
class ServedEngine {
 public:
  // Both outlive the engine.
  ServedEngine(wire::Conversation& conversation, Run& run);
  ~ServedEngine();

  // "done", "value TEXT", "picture WIDTH HEIGHT BYTES" (blue, green, red and a byte more for each pixel, by rows), or
  // "failed NUMBER DESCRIPTION".
  [[nodiscard]] wire::Fields answer(const wire::Fields& question);

 private:
  void run(const std::string& statements);
  [[nodiscard]] std::string eval(const std::string& expression);
  void clickMap(const std::string& x, const std::string& y);
  [[nodiscard]] motor::MapWindow* windowOf(const std::string& handle) const;
  [[nodiscard]] QImage mapPicture(const wire::Fields& question);
  [[nodiscard]] QImage legendPicture() const;

  wire::Conversation& conversation_;
  Run& run_;
  RemoteWindows windows_;
  headless::EmbeddedEngine embedded_;
  headless::EngineHost& host_;
  std::shared_ptr<platform::MapEngine> engine_;
  std::optional<std::int64_t> scriptedMap_;  // the window of an engine that only answers
  motor::MapPainter painter_;
};

}  // namespace relay
