#pragma once

namespace motor {

// While it lives, what the format library complains about on this thread is not printed; whether something failed can
// be asked.
class OgrErrors {
 public:
  OgrErrors();
  ~OgrErrors();
  OgrErrors(const OgrErrors&) = delete;
  OgrErrors& operator=(const OgrErrors&) = delete;

  [[nodiscard]] bool failed() const { return failed_; }

 private:
  bool failed_ = false;
};

}  // namespace motor
