#pragma once

#include "hosts/desktop/ports/known_programs.h"

namespace desktop {

// The user's own desktop: what is said to be there is what then opens the document.
class UserPrograms : public DesktopPrograms {
 public:
  [[nodiscard]] bool has(Stand stand) const override;
  bool open(const std::string& file) override;
};

}  // namespace desktop
