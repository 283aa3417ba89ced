#pragma once

#include <optional>
#include <string>
#include <vector>

#include "atlas/atlas.h"
#include "hosts/headless/fake_windows.h"

namespace atlas {
class FrmPrincipal;
class FrmTematicos;
}  // namespace atlas

namespace monkey {

// What is to be judged after an action.
struct Scene {
  const std::string& action;                // the script's line
  const std::vector<std::string>& effects;  // what the transcript says of it
  const atlas::Atlas& program;
  headless::FakeWindows& windows;
  int sessions = 0;  // of the engine, that are alive
  int mapWindows = 0;
  int mapWindowsOfSession = 0;
};

// Knows what is true of the program whatever the user does and whatever fails. One judge sees one run of the program,
// action by action.
class Judge {
 public:
  // What is wrong after the action, as "RULE: what"; "" when nothing is.
  [[nodiscard]] std::string complaintAfter(const Scene& scene);

 private:
  using Main = atlas::FrmPrincipal;
  struct Rule {
    const char* name;
    std::string (Judge::*check)(const Scene& scene, const Main& main);
  };
  [[nodiscard]] static const std::vector<Rule>& rules();

  [[nodiscard]] std::string engines(const Scene& scene) const;
  std::string opened(const Scene& scene, const Main& main);
  std::string notices(const Scene& scene, const Main& main);
  std::string mode(const Scene& scene, const Main& main);
  std::string consultations(const Scene& scene, const Main& main);
  std::string topmost(const Scene& scene, const Main& main);
  std::string selector(const Scene& scene, const Main& main);
  std::string tree(const Scene& scene, const Main& main);
  std::string options(const Scene& scene, const Main& main);
  std::string texts(const Scene& scene, const Main& main);
  std::string tables(const Scene& scene, const Main& main);
  std::string unit(const Scene& scene, const Main& main);

  bool trouble_ = false;    // whether something failed in this action, so that a handler may have ended early
  bool hadEngine_ = false;  // before this action
  // What the actions before have left.
  std::vector<std::string> visibleNotices_;
  int tab_ = 0;
  int shownTab_ = 0;  // the tab that the main area was last arranged for
  bool consultationsVisible_ = false;
  bool isTopmost_ = false;
  bool tablesReady_ = false;
  bool isUnitHalf_ = false;
  bool isChoiceWhole_ = true;
};

}  // namespace monkey
