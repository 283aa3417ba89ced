#pragma once

#include "forms/control.h"

namespace forms {

struct PageState {
  std::string path;
};

// Shows a page by the path of its file.
class WebBrowser : public ControlWith<PageState> {
 public:
  using ControlWith::ControlWith;

  void navigate(const std::string& path);
  // The path navigated to last; empty before.
  [[nodiscard]] const std::string& path() const { return state_.path; }
  // The name of the page shown, as the host gives it.
  [[nodiscard]] std::string locationName() const;
};

}  // namespace forms
