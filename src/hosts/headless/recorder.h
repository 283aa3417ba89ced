#pragma once

#include <optional>
#include <string>

#include "hosts/headless/faults.h"
#include "hosts/headless/transcript.h"

namespace headless {

// Writes the program's effects and lets those fail that are to fail. Around any host's ports it gives the same text.
class Recorder {
 public:
  using Call = CallKind;

  Recorder(Transcript& transcript, Faults& faults) : transcript_(transcript), faults_(faults) {}

  [[nodiscard]] Transcript& transcript() { return transcript_; }

  // An effect without a result: its line, then the deed. A failure is written after it and passed on.
  template <class Deed>
  void perform(const std::string& line, Deed deed, Call call = Call::other) {
    transcript_.write(line);
    if (const auto fault = waiting(line, call)) fail(*fault);
    try {
      deed();
    } catch (const Failure& failure) {
      fail(failure);
    }
  }

  // An effect with a result: asked first, then its line with what `describe` makes of the result; a failing one has the
  // line without a result.
  template <class Ask, class Describe>
  auto ask(const std::string& line, Ask question, Describe describe, Call call = Call::other) {
    if (const auto fault = waiting(line, call)) {
      transcript_.write(line);
      fail(*fault);
    }
    try {
      auto result = question();
      transcript_.write(line + " = " + describe(result));
      return result;
    } catch (const Failure& failure) {
      transcript_.write(line);
      fail(failure);
    }
  }

  // The failure that the effect of this line is to have.
  [[nodiscard]] std::optional<Failure> waiting(const std::string& line, Call call = Call::other) {
    return faults_.take(transcript_.asWritten(line), call);
  }

 private:
  [[noreturn]] void fail(const Failure& failure) {
    transcript_.write("error " + std::to_string(failure.number()) + " " + failure.description());
    throw Failure(failure);
  }

  Transcript& transcript_;
  Faults& faults_;
};

}  // namespace headless
