#pragma once

#include <QString>
#include <QTimer>
#include <filesystem>
#include <iosfwd>

#include "hosts/desktop/desktop_program.h"

namespace desktop {

// Takes the program through its modes as a user would, on the real windows, and leaves a picture of each step. Message
// boxes are noted and answered with their default button.
class Tour {
 public:
  // Pictures go into `pictures`, which exists; what happens is written to `log`. All outlive the tour.
  Tour(DesktopProgram& program, std::filesystem::path pictures, std::ostream& log);

  // False when a step finds nothing to act on, or a picture cannot be written; the log says which.
  [[nodiscard]] bool walk();

 private:
  // The widget of a control of the main window; fails with std::runtime_error when it is not seen.
  template <class Widget>
  [[nodiscard]] Widget& widget(const char* name) const;
  [[nodiscard]] FormWindow& window(const char* formName) const;

  void step(const std::string& what, const std::string& picture);
  void pickTab(const char* tabControl, int index);
  void pickItem(const char* combo, int index);
  void openFirstBranches();
  void readTree() const;
  void answerMessages();

  void showSplash();
  void showStatistics();
  void consult();
  void visitOtherTabs();
  void minimizeAndRestore();
  void close();

  DesktopProgram& program_;
  std::filesystem::path pictures_;
  std::ostream& log_;
  QTimer messages_;
  int steps_ = 0;
};

}  // namespace desktop
