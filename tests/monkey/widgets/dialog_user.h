#pragma once

#include <QTimer>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

class QDialog;

namespace monkey {

// Closes the message boxes and dialogs that lie in front of everything else, as a user would: by a button, the close
// box or Escape, and gives up what is being dragged. It works on a timer, since whoever opened them waits.
class DialogUser {
 public:
  // Files are saved into the folder given.
  DialogUser(std::uint64_t seed, std::string folder);

  // What it has closed since last asked.
  [[nodiscard]] std::vector<std::string> takeLog();
  // Whether something does not close though it was asked to often enough.
  [[nodiscard]] bool isStuck() const { return tries_ > kPatience; }

 private:
  static constexpr int kPatience = 200;

  void look();
  void closeDialog(QDialog& dialog);
  void endOtherLoop();
  [[nodiscard]] int below(int count) { return static_cast<int>(random_() % static_cast<std::uint64_t>(count)); }

  QTimer timer_;
  std::mt19937_64 random_;
  std::string folder_;
  std::vector<std::string> log_;
  int tries_ = 0;  // at the same dialog
};

}  // namespace monkey
