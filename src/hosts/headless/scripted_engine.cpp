#include "hosts/headless/scripted_engine.h"

#include <algorithm>
#include <regex>
#include <stdexcept>

#include "hosts/headless/text_lines.h"
#include "hosts/headless/wildcard.h"
#include "text/failure.h"
#include "text/utf8.h"

namespace headless {
namespace {

constexpr std::string_view kOnce = "once ";
constexpr std::string_view kEval = "eval ";
constexpr std::string_view kGives = "=>";

const std::regex& toolButtonStatement() {
  static const std::regex pattern(R"re(\btoolbutton\b.*\bid\s+(\d+).*\bcalling\s+ole\s+"([^"]*)")re",
                                  std::regex::icase);
  return pattern;
}

const std::regex& menuCommandStatement() {
  static const std::regex pattern(R"re(\s*run\s+menu\s+command\s+(id\s+)?(\d+)\s*)re", std::regex::icase);
  return pattern;
}

// Menu commands that are tools to hold, not actions.
bool isTool(const std::string& command) { return command.size() == 4 && command.starts_with("17"); }

}  // namespace

void EngineScript::read(std::string_view file) {
  forEachTextLine(file, [this](std::string_view line) {
    Rule rule;
    rule.once = line.starts_with(kOnce);
    if (rule.once) line.remove_prefix(kOnce.size());
    const std::size_t gives = line.find(kGives);
    if (!line.starts_with(kEval) || gives == std::string_view::npos) {
      throw std::invalid_argument("expected [once] eval PATTERN => TEXT");
    }
    rule.pattern = text::lower(text::trim(line.substr(kEval.size(), gives - kEval.size())));
    rule.text = text::trim(line.substr(gives + kGives.size()));
    rules_.push_back(std::move(rule));
  });
}

std::string EngineScript::answer(const std::string& expression) {
  const std::string asked = text::lower(text::trim(expression));
  const auto rule = std::ranges::find_if(rules_, [&](const Rule& r) { return matchesWildcard(r.pattern, asked); });
  if (rule == rules_.end()) return "";
  std::string text = rule->text;
  if (rule->once) rules_.erase(rule);
  return text;
}

void ScriptedEngine::run(const std::string& statements) {
  std::smatch found;
  if (std::regex_search(statements, found, toolButtonStatement())) {
    buttons_.push_back({found[1].str(), found[2].str()});
  } else if (std::regex_match(statements, found, menuCommandStatement())) {
    if (found[1].matched) {
      tool_ = found[2].str();
    } else if (isTool(found[2].str())) {
      tool_.clear();
    }
  }
}

void ScriptedEngine::click(const std::string& x, const std::string& y) {
  const auto button = std::ranges::find(buttons_, tool_, &ToolButton::id);
  if (button == buttons_.end() || callback_ == nullptr) return;
  const auto callback = callback_;  // the method may replace it
  callback->invoke(button->method, "MI:" + x + "," + y + ",F,F,,," + button->id + ",");
}

ScriptedEngines::ScriptedEngines(std::string_view engineFile) { script_->read(engineFile); }

bool ScriptedEngines::clickMap(const std::string& x, const std::string& y) {
  const auto engine = current_.lock();
  if (engine == nullptr) return false;
  engine->click(x, y);
  return true;
}

std::shared_ptr<platform::MapEngine> ScriptedEngines::create(const std::string& programId) {
  if (!text::equalsIgnoringCase(programId, "MapInfo.runtime")) throw failures::cannotCreateObject();
  auto engine = std::make_shared<ScriptedEngine>(script_);
  current_ = engine;
  return engine;
}

}  // namespace headless
