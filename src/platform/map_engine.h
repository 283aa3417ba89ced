#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/variant.h"

// The outside map engine, met by three operations only. All calls happen on the program's one thread; the engine may
// call the callback object back while a call of ours, or the user's click on the map, is under way.
namespace platform {

// The object whose methods the engine calls by name.
class CallbackObject {
 public:
  virtual ~CallbackObject() = default;

  // The class's own name, for logs: "MICallback".
  [[nodiscard]] virtual std::string className() const = 0;

  // The names of its methods in the order of their declaration, for engines that ask for names before they call.
  // Objects that answer to any name have none.
  [[nodiscard]] virtual std::vector<std::string> methods() const { return {}; }

  // Calls the method named `method`, found without regard to case, with the callback message. No exception but the end
  // of the program leaves it. Returns false when there is no such method.
  virtual bool invoke(const std::string& method, const std::string& message) = 0;
};

// One running engine. Destroying it releases the reference; the engine's windows close with it.
class MapEngine {
 public:
  virtual ~MapEngine() = default;

  // Runs one text of statements. Fails with -2147352567 when the engine rejects it.
  virtual void run(const std::string& statements) = 0;

  // Evaluates one expression; logical results are the text "T" or "F". Fails as `run` does.
  [[nodiscard]] virtual Variant eval(const std::string& expression) = 0;

  // Registers the object that menus and tool buttons created with "calling OLE" call back; replaces an earlier one. The
  // engine shares it until it is replaced or the engine is destroyed.
  virtual void setCallback(std::shared_ptr<CallbackObject> callback) = 0;
};

// The service that creates engines by program id.
class MapEngines {
 public:
  virtual ~MapEngines() = default;

  // A new engine for "MapInfo.runtime". Fails with 429 when no such engine can be created. May return null where the
  // service answers without an object.
  [[nodiscard]] virtual std::shared_ptr<MapEngine> create(const std::string& programId) = 0;
};

}  // namespace platform
