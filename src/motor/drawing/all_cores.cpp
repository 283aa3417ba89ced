#include "motor/drawing/all_cores.h"

#include <QThread>
#include <QThreadPool>
#include <condition_variable>
#include <exception>
#include <mutex>

namespace motor {

namespace {

// Waits for those who work together, and keeps what went wrong.
class Crew {
 public:
  // Runs some work and keeps the exception that leaves it.
  template <typename Work>
  void run(const Work& work) noexcept {
    try {
      work();
    } catch (...) {
      const std::scoped_lock lock(mutex_);
      if (!failure_) failure_ = std::current_exception();
    }
  }
  void leave() {
    const std::scoped_lock lock(mutex_);
    ++gone_;
    left_.notify_one();  // while locked: whoever waits may end the crew's life as soon as it is not
  }
  void waitFor(int others) {
    std::unique_lock lock(mutex_);
    left_.wait(lock, [&] { return gone_ == others; });
  }
  void passOnFailure() const {
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  std::mutex mutex_;
  std::condition_variable left_;
  int gone_ = 0;
  std::exception_ptr failure_;
};

}  // namespace

void onAllCores(const std::function<void()>& takePart) {
  Crew crew;
  int others = 0;
  const std::function<void()> joinIn = [&] {
    crew.run(takePart);
    crew.leave();
  };
  crew.run([&] {
    while (others + 1 < QThread::idealThreadCount() && QThreadPool::globalInstance()->tryStart(joinIn)) ++others;
    takePart();
  });
  crew.waitFor(others);
  crew.passOnFailure();
}

}  // namespace motor
