#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "study/model/study_error.h"

namespace study {

// Something in the input that a person has to put right.
struct Fault {
  std::string file;
  std::size_t line = 0;  // from 1; 0 where a fault is no line's
  std::string message;
  std::string remedy;  // what to do

  // "FILE:LINE: message; remedy".
  [[nodiscard]] std::string text() const;
  bool operator==(const Fault&) const = default;
};

// The input cannot be made into a study. what() lists at most kPrinted faults, a line each, and tells how many more
// there are.
class InputFaults : public StudyError {
 public:
  static constexpr std::size_t kPrinted = 50;

  // `printed` are those that what() lists.
  InputFaults(std::vector<Fault> faults, const std::vector<Fault>& printed, std::size_t total);

  // Those that were kept, by file and line.
  [[nodiscard]] const std::vector<Fault>& faults() const { return faults_; }
  // All that were found; no less than were kept.
  [[nodiscard]] std::size_t total() const { return total_; }

 private:
  std::vector<Fault> faults_;
  std::size_t total_;
};

}  // namespace study
