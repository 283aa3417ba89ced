#pragma once

#include <cstddef>
#include <string>

#include "motor/language/error.h"

namespace motor {

// How much a text given to the session may run, with all that its statements run in their turn: a few levels of
// workspaces that each run the next many times would never end.
class RunBudget {
 public:
  // More than any text of its own can hold, short of one made of single words: only what runs others gets here.
  static constexpr std::size_t kMostStatements = 1'000'000;
  // Bytes of the texts and workspaces that statements run, as often as they are run. More than the longest workspace.
  static constexpr std::size_t kMostBytes = 40'000'000;
  // What finding, reading and parsing even an empty one costs, in bytes.
  static constexpr std::size_t kLeastBytes = 2'000;

  // Each throws EngineError when it is too much.
  void spendStatement() {
    if (++statements_ > kMostStatements)
      throw EngineError("no se pueden ejecutar de una vez más de " + std::to_string(kMostStatements) +
                        " instrucciones");
  }
  void spendText(std::size_t bytes) {
    bytes_ += bytes + kLeastBytes;
    if (bytes_ > kMostBytes) throw EngineError("demasiadas instrucciones que ejecutan otras");
  }

 private:
  std::size_t statements_ = 0;
  std::size_t bytes_ = 0;
};

}  // namespace motor
