#include "scenario.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "hosts/headless/embedded/embedded_engine.h"
#include "hosts/headless/scripted_engine.h"
#include "text/file_text.h"

namespace scenarios {
namespace {

namespace fs = std::filesystem;

constexpr auto kCopy = fs::copy_options::recursive | fs::copy_options::overwrite_existing;

}  // namespace

std::vector<std::string> names() {
  std::vector<std::string> result;
  for (const auto& entry : fs::directory_iterator(VELDORIA_SCENARIOS)) {
    if (entry.path().extension() == ".replay") result.push_back(entry.path().stem().string());
  }
  std::ranges::sort(result);
  return result;
}

fs::path file(const std::string& name, const std::string& ending) {
  return fs::path(VELDORIA_SCENARIOS) / (name + ending);
}

std::string contentsOf(const fs::path& file) {
  auto bytes = text::wholeFile(file);
  if (!bytes) throw std::runtime_error("cannot read " + text::fromPath(file));
  return *std::move(bytes);
}

Lines linesOf(const std::string& text) {
  Lines lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

std::vector<Block> blocksOf(const Lines& transcript) {
  std::vector<Block> blocks;
  for (const std::string& line : transcript) {
    if (line.starts_with("> ")) {
      blocks.push_back({line, {}});
    } else if (!blocks.empty()) {
      blocks.back().lines.push_back(line);
    }
  }
  return blocks;
}

Study::Study(const std::string& name) : folder_(fs::canonical(fs::path(VELDORIA_SCENARIOS) / "tiny")) {
  const fs::path own = file(name, ".app");
  const bool saves = contentsOf(file(name, ".replay")).find("click ImgExportar") != std::string::npos;
  if (saves || fs::is_directory(own)) copyInto(name);
  if (fs::is_directory(own)) fs::copy(own, folder_, kCopy);
}

Study::Study() : folder_(fs::canonical(fs::path(VELDORIA_SCENARIOS) / "tiny")) { copyInto("study"); }

void Study::copyInto(const std::string& name) {
  std::string pattern = (fs::temp_directory_path() / ("veldoria-" + name + "-XXXXXX")).string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("cannot make a folder " + pattern);
  fs::copy(folder_, pattern, kCopy);
  folder_ = fs::canonical(pattern);
  isCopy_ = true;
}

Study::~Study() {
  std::error_code ignored;
  if (isCopy_) fs::remove_all(folder_, ignored);
}

std::string Study::folder() const { return text::fromPath(folder_); }

InFolder::InFolder(const std::string& folder) : before_(fs::current_path()) { fs::current_path(text::toPath(folder)); }

InFolder::~InFolder() {
  std::error_code ignored;
  fs::current_path(before_, ignored);
}

Run::Run(const std::string& name, const Study& study) {
  if (const fs::path engine = file(name, ".engine"); fs::exists(engine)) {
    engines_ = std::make_unique<headless::ScriptedEngines>(contentsOf(engine));
  } else {
    engines_ = std::make_unique<headless::EmbeddedEngine>(study.folder());
  }
  std::optional<std::string> registry;
  if (const fs::path own = file(name, ".registry"); fs::exists(own)) registry = contentsOf(own);
  start(study.folder(), registry);
}

Run::Run(const std::string& studyFolder) : engines_(std::make_unique<headless::EmbeddedEngine>(studyFolder)) {
  start(studyFolder, std::nullopt);
}

void Run::start(const std::string& folder, const std::optional<std::string>& registry) {
  world_ = std::make_unique<headless::HeadlessWorld>(folder, registry, *engines_);
  replay_ =
      std::make_unique<headless::Replay>(*world_, [this](const std::string& line) { transcript_.push_back(line); });
}

}  // namespace scenarios
