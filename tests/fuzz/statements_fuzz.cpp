#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "fuzzed_study.h"
#include "motor/session/headless_windows.h"
#include "motor/session/session.h"
#include "text/failure.h"

// The lines of the input are given to a session with the map of a year: one that begins with "=" is an expression, any
// other some statements. The session may reject them and nothing else.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const FuzzedStudy study;
  motor::HeadlessWindows windows;
  motor::Session session(windows, {.roots = {study.path()}});
  session.run(FuzzedStudy::statements());
  std::istringstream lines(std::string(data, data + size));
  for (std::string line; std::getline(lines, line);) {
    try {
      if (line.starts_with('=')) {
        static_cast<void>(session.eval(line.substr(1)));
      } else {
        session.run(line);
      }
    } catch (const Failure&) {  // rejected
    }
  }
  return 0;
}
