#pragma once

#include <filesystem>
#include <vector>

namespace study {

// Puts what a draft folder holds in the place of what an output folder holds under the same names. A journal in the
// work folder tells that a swap has begun: from then on it can be finished, by whoever comes next, from any point at
// which the program was killed. All three folders are on one disk. Everything throws std::filesystem::filesystem_error.
class FolderSwap {
 public:
  FolderSwap(std::filesystem::path work, std::filesystem::path draft, std::filesystem::path output);

  // Makes files of the draft that have the same bytes as the output's the very same files.
  void keepUnchangedFiles() const;

  // Whether a swap has begun that is not finished.
  [[nodiscard]] bool hasBegun() const;

  // Writes the journal.
  void begin() const;

  // Makes the moves that are still to be made, and removes the journal. Nothing happens where no swap has begun. Where
  // a move fails, all are taken back.
  void finish() const;

 private:
  struct Move {
    std::filesystem::path from;
    std::filesystem::path to;
  };
  [[nodiscard]] std::vector<Move> missingMoves() const;
  void takeBack() const;

  std::filesystem::path journal_;
  std::filesystem::path earlier_;
  std::filesystem::path draft_;
  std::filesystem::path output_;
};

}  // namespace study
