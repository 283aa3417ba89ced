#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace forms {

// A list of handlers, called in the order in which they were added.
template <class... Arguments>
class Event {
 public:
  using Handler = std::function<void(Arguments...)>;

  void add(Handler handler) { handlers_.push_back(std::move(handler)); }

  // Handlers added while the event is being raised are not called this time.
  void raise(Arguments... arguments) const {
    for (std::size_t i = 0, count = handlers_.size(); i < count; ++i) handlers_[i](arguments...);
  }

  [[nodiscard]] bool hasHandlers() const { return !handlers_.empty(); }

 private:
  std::vector<Handler> handlers_;
};

}  // namespace forms
