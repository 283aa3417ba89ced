#include "motor/session/session.h"

#include <new>

#include "motor/language/parser.h"
#include "motor/session/session_state.h"
#include "text/failure.h"

namespace motor {
namespace {

// Does what the port asks, and turns whatever goes wrong into the port's failure. Failures of the program's own
// handlers and its end pass through.
template <typename Action>
auto atPort(const SessionState& session, Action action) {
  try {
    if (session.ended) throw EngineError("la sesión ha terminado");
    return action();
  } catch (const Failure&) {
    throw;
  } catch (const std::bad_alloc&) {
    throw failures::engineRejected("no hay memoria suficiente");
  } catch (const std::exception& e) {
    throw failures::engineRejected(e.what());
  }
}

}  // namespace

Session::Session(WindowPort& windows, SessionOptions options)
    : state_(std::make_unique<SessionState>(windows, std::move(options))) {}

Session::~Session() = default;

void Session::run(const std::string& statements) {
  atPort(*state_, [&] {
    // A copy: a statement may run a text of its own, or call back into the program.
    const TextCache<std::vector<Statement>>::Pointer program =
        state_->programs.get(statements, [](const std::string& s) { return parseProgram(s); });
    state_->run(*program);
  });
}

platform::Variant Session::eval(const std::string& expression) {
  return atPort(*state_, [&] {
    const auto& prepared =
        state_->expressions.get(expression, [](const std::string& s) { return PreparedExpression(s); });
    return platform::Variant(prepared->evaluateToText(*state_));
  });
}

void Session::setCallback(std::shared_ptr<platform::CallbackObject> callback) {
  state_->callback = std::move(callback);
}

std::vector<MapWindow*> Session::mapWindows() const {
  std::vector<MapWindow*> windows;
  for (const auto& window : state_->windows()) windows.push_back(window.get());
  return windows;
}

}  // namespace motor
