#pragma once

#include "platform/files.h"

namespace windows {

// The machine's own disks. A look-up finds normal, read-only and archive files, no hidden or system ones.
class NativeFiles : public platform::Files {
 public:
  [[nodiscard]] std::string lookUp(const std::string& path) override;
  [[nodiscard]] std::vector<std::string> folders(const std::string& path) override;
  void copy(const std::string& from, const std::string& to) override;
};

}  // namespace windows
