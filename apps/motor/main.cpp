#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>
#include <charconv>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "motor/drawing/legend.h"
#include "motor/drawing/map_image.h"
#include "motor/drawing/symbol_pictures.h"
#include "motor/language/workspace.h"
#include "motor/session/headless_windows.h"
#include "motor/session/session.h"
#include "motor/session/table_files.h"
#include "text/failure.h"
#include "text/number_text.h"

// The embedded map engine without a screen: opens a workspace, runs statements, expressions and clicks, and writes the
// map and its legend as pictures; or only parses workspaces.

namespace {

constexpr const char* kUsage =
    "motor FILE.wor [--size WxH] [--png OUT] [--legend OUT] [do STATEMENT | eval EXPRESSION | click X Y]...\n"
    "motor --parse [--passed] FILE...\n"
    "motor --help\n";

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Step {
  enum class Kind { run, evaluate, click };
  Kind kind = Kind::run;
  std::string text;  // the statement or expression
  motor::Point at;   // of a click, in the session's coordinates
};

struct CommandLine {
  std::filesystem::path workspace;
  std::optional<QSize> size;
  std::string png;
  std::string legend;
  std::vector<Step> steps;
};

int pixels(const std::string& word) {
  int value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (error != std::errc() || end != word.data() + word.size() || value < 1 || value > 20000) {
    throw UsageError("no es un tamaño: " + word);
  }
  return value;
}

QSize sizeOf(const std::string& word) {
  const std::size_t cross = word.find('x');
  if (cross == std::string::npos) throw UsageError("no es un tamaño: " + word);
  return {pixels(word.substr(0, cross)), pixels(word.substr(cross + 1))};
}

CommandLine parsedCommandLine(const std::vector<std::string>& words) {
  CommandLine line;
  std::size_t next = 0;
  const auto take = [&] {
    if (next == words.size()) throw UsageError("falta una palabra tras " + words.back());
    return words[next++];
  };
  line.workspace = take();
  while (next < words.size()) {
    const std::string word = take();
    if (word == "--size") {
      line.size = sizeOf(take());
    } else if (word == "--png") {
      line.png = take();
    } else if (word == "--legend") {
      line.legend = take();
    } else if (word == "do") {
      line.steps.push_back({Step::Kind::run, take(), {}});
    } else if (word == "eval") {
      line.steps.push_back({Step::Kind::evaluate, take(), {}});
    } else if (word == "click") {
      const double x = text::toNumber(take());
      line.steps.push_back({Step::Kind::click, "", {x, text::toNumber(take())}});
    } else {
      throw UsageError("no se entiende: " + word);
    }
  }
  return line;
}

// Prints what the engine calls back.
class PrintedCallback : public platform::CallbackObject {
 public:
  [[nodiscard]] std::string className() const override { return "motor"; }
  bool invoke(const std::string& method, const std::string& message) override {
    std::cout << "call " << method << ' ' << message << '\n';
    return true;
  }
};

motor::MapWindow& mapOf(const motor::Session& session) {
  const std::vector<motor::MapWindow*> windows = session.mapWindows();
  if (windows.empty()) throw Failure(failures::kEngineRejected, "no hay ninguna ventana de mapa");
  return *windows.front();
}

void perform(motor::Session& session, const Step& step) {
  switch (step.kind) {
    case Step::Kind::run:
      std::cout << "do " << step.text << '\n';
      session.run(step.text);
      break;
    case Step::Kind::evaluate: {
      std::string line = "eval " + step.text;
      try {
        line += " = " + session.eval(step.text).text();
      } catch (const Failure&) {
        std::cout << line << '\n';
        throw;
      }
      std::cout << line << '\n';
      break;
    }
    case Step::Kind::click:
      std::cout << "click " << text::number(step.at.x) << ' ' << text::number(step.at.y) << '\n';
      mapOf(session).clickedAt(step.at, false, false);
      break;
  }
}

// Whether `action` went well; else the failure is printed.
template <typename Action>
bool succeeds(Action action) {
  try {
    action();
    return true;
  } catch (const Failure& failure) {
    std::cout << "error " << failure.number() << ' ' << failure.description() << '\n';
    return false;
  }
}

void save(const QImage& image, const std::string& file) {
  if (!image.save(QFile::decodeName(file.c_str()), "PNG"))
    throw failures::engineRejected("no se puede escribir " + file);
}

void savePictures(const motor::Session& session, const CommandLine& line) {
  if (line.png.empty() && line.legend.empty()) return;
  const motor::Map& map = mapOf(session).map();
  const QSize size = line.size.value_or(QSize(map.pixelWidth, map.pixelHeight));
  if (!line.png.empty()) save(motor::renderMap(map, size, 1), line.png);
  if (!line.legend.empty()) save(motor::renderLegend(map, 1), line.legend);
}

int open(const CommandLine& line) {
  const std::filesystem::path workspace = std::filesystem::absolute(line.workspace);
  motor::HeadlessWindows windows =
      line.size ? motor::HeadlessWindows(line.size->width(), line.size->height()) : motor::HeadlessWindows();
  motor::SessionOptions options;
  options.roots = motor::rootsOf(workspace);
  motor::useSymbolsOf(options.roots.back());
  motor::Session session(windows, options);
  session.setCallback(std::make_shared<PrintedCallback>());
  if (!succeeds([&] { session.run("run application \"" + workspace.string() + "\""); })) return 1;
  bool good = true;
  for (const Step& step : line.steps) good = succeeds([&] { perform(session, step); }) && good;
  good = succeeds([&] { savePictures(session, line); }) && good;
  return good ? 0 : 1;
}

// `tellsPassedOver`: below each file's line, a line for each clause that is read and without effect.
int parse(const std::vector<std::string>& files, bool tellsPassedOver) {
  int status = 0;
  for (const std::string& name : files) {
    QFile file(QFile::decodeName(name.c_str()));
    if (!file.open(QIODevice::ReadOnly)) {
      std::cout << name << ": no se puede leer\n";
      status = 1;
      continue;
    }
    try {
      const motor::Workspace workspace = motor::parseWorkspace(file.readAll().toStdString());
      std::cout << name << ": " << workspace.statements.size() << " statements\n";
      if (!tellsPassedOver) continue;
      for (const motor::PassedOverPart& part : workspace.passedOver) {
        std::cout << name << ':' << part.position.line << ':' << part.position.column << ": passed over: " << part.words
                  << '\n';
      }
    } catch (const motor::LanguageError& error) {
      const motor::Position at = error.position();
      const std::string word = error.word().empty() ? "fin del texto" : "«" + error.word() + "»";
      std::cout << name << ':' << at.line << ':' << at.column << ": " << word << ": " << error.reason() << '\n';
      status = 1;
    }
  }
  return status;
}

// Nothing is shown, so no screen is asked for; nor a session, in whose folder the toolkit looks for screens: where
// there is none, it gets an empty folder for as long as this lives.
class NoScreen {
 public:
  NoScreen() {
    constexpr const char* kSessionFolder = "XDG_RUNTIME_DIR";
    const bool hasScreen = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!hasScreen && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsSet(kSessionFolder)) return;
    session_.emplace();
    qputenv(kSessionFolder, QFile::encodeName(session_->path()));
  }

 private:
  std::optional<QTemporaryDir> session_;
};

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> words(argv + 1, argv + argc);
  if (words == std::vector<std::string>{"--help"}) {
    std::cout << kUsage;
    return 0;
  }
  if (!words.empty() && words.front() == "--parse") {
    const bool tellsPassedOver = words.size() > 1 && words[1] == "--passed";
    return parse({words.begin() + (tellsPassedOver ? 2 : 1), words.end()}, tellsPassedOver);
  }
  try {
    if (words.empty()) throw UsageError("falta el área de trabajo");
    const CommandLine line = parsedCommandLine(words);
    const NoScreen screen;
    const QGuiApplication application(argc, argv);
    return open(line);
  } catch (const UsageError& error) {
    std::cerr << error.what() << '\n' << kUsage;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
  }
  return 1;
}
