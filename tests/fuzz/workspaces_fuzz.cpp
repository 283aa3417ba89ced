#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzzed_study.h"
#include "motor/session/headless_windows.h"
#include "motor/session/session.h"
#include "text/failure.h"

// The input is a workspace beside the tables of a year. The session may reject it and nothing else.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const FuzzedStudy study;
  const std::string file = study.write("2001/fuzz.wor", std::string(data, data + size)).string();
  motor::HeadlessWindows windows;
  motor::Session session(windows, {.roots = {study.path()}});
  try {
    session.run("run application \"" + file + "\"");
  } catch (const Failure&) {  // rejected
  }
  return 0;
}
