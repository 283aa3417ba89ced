#include "hosts/windows/action_queue.h"

#include <utility>

#include "hosts/windows/win32/message_window.h"

namespace windows {
namespace {

constexpr UINT kRunNext = WM_APP;

}  // namespace

ActionQueue::ActionQueue(screen::ProgramCalls& calls)
    : calls_(calls), window_(makeMessageWindow(L"VeldoriaQueue", receive, this)) {}

ActionQueue::~ActionQueue() { SetWindowLongPtrW(window_.get(), GWLP_USERDATA, 0); }

void ActionQueue::post(Action action) {
  if (!calls_.isBusy()) postWhenFree(std::move(action));
}

void ActionQueue::postWhenFree(Action action) {
  postOwn([this, action = std::move(action)] { calls_.run(action); });
}

void ActionQueue::postOwn(Action action) {
  actions_.push_back(std::move(action));
  wake();
}

void ActionQueue::wake() {
  if (!actions_.empty() && !calls_.isBusy()) PostMessageW(window_.get(), kRunNext, 0, 0);
}

// One for each message, so that the thread's other messages get their turn.
void ActionQueue::runNext() {
  if (actions_.empty() || calls_.isBusy()) return;
  const Action next = std::move(actions_.front());
  actions_.pop_front();
  wake();  // one message for all that wait would leave the others behind
  next();
}

LRESULT ActionQueue::receive(HWND window, UINT message, WPARAM wide, LPARAM large) {
  auto* queue = ownerOf<ActionQueue>(window);
  if (queue == nullptr || message != kRunNext) return DefWindowProcW(window, message, wide, large);
  queue->calls_.guard([queue] { queue->runNext(); });
  return 0;
}

}  // namespace windows
