#include "counted_engines.h"

namespace monkey {

std::shared_ptr<platform::MapEngine> CountedEngines::create(const std::string& programId) {
  auto session = inner_.engines().create(programId);
  sessions_.emplace_back(session);
  return session;
}

int CountedEngines::sessions() {
  std::erase_if(sessions_, [](const auto& session) { return session.expired(); });
  return static_cast<int>(sessions_.size());
}

int CountedEngines::windowsOfSession() const {
  const auto session = inner_.current();
  return session == nullptr ? 0 : static_cast<int>(session->mapWindows().size());
}

}  // namespace monkey
