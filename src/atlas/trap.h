#pragma once

#include <exception>

#include "atlas/titles.h"
#include "platform/messages.h"

// The two error traps that a handler may run under. Both leave the handler at its first failure and undo nothing; the
// end of the program (platform::ProgramEnd) passes through them.
namespace atlas {

template <class Handler>
void silently(Handler handler) {
  try {
    handler();
  } catch (const std::exception&) {
    // The handler ends without a word.
  }
}

// Shows the failure's description; when that cannot be shown either, nobody hears of it.
template <class Handler>
void reporting(platform::Messages& messages, Handler handler) {
  try {
    handler();
  } catch (const std::exception& failure) {
    silently([&] { messages.show(failure.what(), platform::kOkOnly, kProgramTitle); });
  }
}

}  // namespace atlas
