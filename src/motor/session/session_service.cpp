#include "motor/session/session.h"
#include "text/failure.h"
#include "text/utf8.h"

namespace motor {

SessionService::SessionService(WindowPort& windows, SessionOptions options)
    : windows_(windows), options_(std::move(options)) {}

std::shared_ptr<platform::MapEngine> SessionService::create(const std::string& programId) {
  if (!text::equalsIgnoringCase(programId, "MapInfo.runtime")) throw failures::cannotCreateObject();
  auto session = std::make_shared<Session>(windows_, options_);
  current_ = session;
  return session;
}

std::shared_ptr<Session> SessionService::current() const { return current_.lock(); }

}  // namespace motor
