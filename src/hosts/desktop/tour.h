#pragma once

#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/tour_guide.h"

namespace desktop {

// Takes the program through its modes as a user would, on the real windows: every mode, each tool, each document,
// tables and an export, a print, the keyboard's copy. Leaves a picture of each step.
class Tour {
 public:
  // As for TourGuide. The study has to hold what the program opens, at least for the year 1999.
  Tour(DesktopProgram& program, NotedPrograms& programs, std::filesystem::path pictures, std::ostream& log);

  // False when a step finds nothing to act on, or something is not written that should be; the log says which.
  [[nodiscard]] bool walk();

 private:
  void showSplash();
  void showStatistics();
  void openDocuments();
  void consult();
  void search();
  void useTools();
  void printMap();
  void showThematicMaps();
  void showTables();
  void exportTable();
  void minimizeAndRestore();
  void close();

  void chooseTool(const char* control);
  void openFirstBranches();
  void sayTree();

  DesktopProgram& program_;
  TourGuide guide_;
};

}  // namespace desktop
