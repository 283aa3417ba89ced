#include "life.h"

#include <algorithm>
#include <filesystem>

#include "forms/form.h"
#include "text/file_text.h"

namespace monkey {
namespace {

namespace fs = std::filesystem;

// The folder stays: it may be the current one.
std::string emptied(const fs::path& folder) {
  fs::create_directories(folder);
  for (const auto& entry : fs::directory_iterator(folder)) fs::remove_all(entry.path());
  return text::fromPath(folder);
}

}  // namespace

Life::Life(const std::string& studyFolder)
    : here_(emptied(text::toPath(studyFolder) / "salidas")),
      engines_(studyFolder),
      world_(studyFolder, std::nullopt, engines_) {
  replay_ = std::make_unique<headless::Replay>(world_, [this](const std::string& line) { effects_.push_back(line); });
}

Life::~Life() = default;

bool Life::act(const std::string& line) {
  if (isOver()) return false;
  std::vector<std::string> before = std::move(effects_);
  effects_.clear();
  complaint_.clear();
  try {
    replay_->runLine(line);
  } catch (const headless::UntrappedFailure& failure) {
    complaint_ = std::string("trap: ") + failure.what();
  } catch (const headless::ScriptError&) {
    effects_ = std::move(before);
    return false;
  } catch (const std::exception& problem) {
    complaint_ = std::string("exception: ") + problem.what();
  }
  script_.push_back(line);
  if (complaint_.empty()) judge(line);
  return true;
}

void Life::judge(const std::string& line) {
  if (replay_->program() == nullptr || replay_->hasEnded()) return;
  complaint_ = judge_.complaintAfter({.action = line,
                                      .effects = effects_,
                                      .program = *replay_->program(),
                                      .windows = world_.windows(),
                                      .sessions = engines_.sessions(),
                                      .mapWindows = engines_.windows(),
                                      .mapWindowsOfSession = engines_.windowsOfSession()});
}

void Life::end() {
  complaint_.clear();
  for (const char* form : {"frmPrincipal", "frmTematicos", "frmInicio"}) {
    if (!complaint_.empty() || isOver() || program() == nullptr) break;
    const bool isOpen = std::ranges::any_of(
        program()->forms(), [&](const forms::Form* each) { return each->name() == form && each->isLoaded(); });
    if (isOpen) act(std::string("close ") + form);
  }
  if (complaint_.empty() && program() != nullptr && !isOver()) complaint_ = "end: it goes on with no window left";
  replay_.reset();
  if (!complaint_.empty()) return;
  if (engines_.sessions() != 0) complaint_ = "end: an engine is alive";
  if (engines_.windows() != 0) complaint_ = "end: a map window is open";
}

std::string complaintAbout(const Script& script, const std::string& studyFolder) {
  Life life(studyFolder);
  for (const std::string& line : script) {
    if (life.act(line) && !life.complaint().empty()) return life.complaint();
  }
  life.end();
  return life.complaint();
}

std::string ruleOf(const std::string& complaint) { return complaint.substr(0, complaint.find(':')); }

}  // namespace monkey
