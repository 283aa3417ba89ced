#pragma once

#include "forms/control.h"

namespace forms {

struct DialogState {
  std::string dialogTitle;
  std::string filter;
  std::string fileName;
  int helpCommand = 0;
  std::string helpFile;
};

// The settings of a file or help dialog; never seen itself. Writing them tells nobody: the dialog itself is the effect.
class CommonDialog : public ControlWith<DialogState> {
 public:
  using ControlWith::ControlWith;

  [[nodiscard]] const std::string& dialogTitle() const { return state_.dialogTitle; }
  void setDialogTitle(const std::string& title) { state_.dialogTitle = title; }
  [[nodiscard]] const std::string& filter() const { return state_.filter; }
  void setFilter(const std::string& filter) { state_.filter = filter; }
  [[nodiscard]] const std::string& fileName() const { return state_.fileName; }
  void setFileName(const std::string& fileName) { state_.fileName = fileName; }
  [[nodiscard]] int helpCommand() const { return state_.helpCommand; }
  void setHelpCommand(int command) { state_.helpCommand = command; }
  [[nodiscard]] const std::string& helpFile() const { return state_.helpFile; }
  void setHelpFile(const std::string& file) { state_.helpFile = file; }
};

}  // namespace forms
