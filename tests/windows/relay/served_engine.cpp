#include "relay/served_engine.h"

#include <QPainter>
#include <algorithm>
#include <stdexcept>

#include "motor/drawing/legend.h"
#include "text/failure.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace relay {
namespace {

constexpr const char* kProgramId = "MapInfo.runtime";
constexpr int kScriptedMap = 1;

// Calls the other side's callback object.
class RemoteCallback : public platform::CallbackObject {
 public:
  explicit RemoteCallback(wire::Conversation& conversation) : conversation_(conversation) {}

  [[nodiscard]] std::string className() const override { return "MICallback"; }
  bool invoke(const std::string& method, const std::string& message) override {
    return conversation_.ask({"call", method, message}) == wire::Fields{"done", "yes"};
  }

 private:
  wire::Conversation& conversation_;
};

int number(const std::string& s) { return text::toInt32(s); }

wire::Fields asFields(const QImage& picture) {
  std::string bytes;
  for (int y = 0; y < picture.height(); ++y) {
    bytes.append(reinterpret_cast<const char*>(picture.constScanLine(y)),
                 static_cast<std::size_t>(picture.width()) * 4);
  }
  return {"picture", std::to_string(picture.width()), std::to_string(picture.height()), std::move(bytes)};
}

// The question for a window's handle, as the program and only it asks it.
bool asksForHandle(const std::string& expression) {
  std::string asked = text::lower(expression);
  std::erase(asked, ' ');
  return asked.starts_with("windowinfo(") && asked.ends_with(",12)");
}

bool isHandle(const std::string& answer) {
  return !answer.empty() && std::ranges::all_of(answer, [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

ServedEngine::ServedEngine(wire::Conversation& conversation, Run& run)
    : conversation_(conversation),
      run_(run),
      windows_(conversation),
      embedded_(run.machineFolder, windows_),
      host_(run.script == nullptr ? static_cast<headless::EngineHost&>(embedded_) : *run.script),
      engine_(host_.engines().create(kProgramId)) {}

ServedEngine::~ServedEngine() = default;

wire::Fields ServedEngine::answer(const wire::Fields& question) {
  const std::string& what = question.at(0);
  try {
    if (what == "eval") return {"value", run_.toProgram(eval(run_.toMachine(question.at(1))))};
    if (what == "picture") return asFields(mapPicture(question));
    if (what == "legendpicture") return asFields(legendPicture());
    if (what == "do") {
      engine_->run(run_.toMachine(question.at(1)));
    } else if (what == "callback-set") {
      engine_->setCallback(std::make_shared<RemoteCallback>(conversation_));
    } else if (what == "mapclick") {
      clickMap(question.at(1), question.at(2));
    } else if (what == "resized") {
      if (auto* window = windowOf(question.at(1))) window->resized(number(question.at(2)), number(question.at(3)));
    } else if (what == "clicked") {
      if (auto* window = windowOf(question.at(1))) {
        window->clicked({text::toNumber(question.at(2)), text::toNumber(question.at(3))}, false, false);
      }
    } else if (what == "legendclosed") {
      if (motor::MapWindow* window = windows_.legendOf()) {
        windows_.forgetLegend();
        window->legendClosed();
      }
    } else {
      throw std::invalid_argument("no such question: " + what);
    }
    return {"done"};
  } catch (const Failure& failure) {
    return {"failed", std::to_string(failure.number()), run_.toProgram(failure.description())};
  }
}

// A scripted engine opens no map, yet the program is to find a window.
std::string ServedEngine::eval(const std::string& expression) {
  std::string answer = engine_->eval(expression).text();
  if (run_.script == nullptr || !asksForHandle(expression) || !isHandle(answer)) return answer;
  if (!scriptedMap_) scriptedMap_ = windows_.open(kScriptedMap, 640, 480);
  return std::to_string(*scriptedMap_);
}

void ServedEngine::clickMap(const std::string& x, const std::string& y) {
  if (!host_.clickMap(x, y)) throw Failure(failures::kNoObject, "there is no map to click on");
}

motor::MapWindow* ServedEngine::windowOf(const std::string& handle) const {
  if (run_.script != nullptr) return nullptr;
  const auto windows = embedded_.current()->mapWindows();
  const auto found = std::ranges::find_if(
      windows, [&](const motor::MapWindow* window) { return std::to_string(window->handle()) == handle; });
  return found == windows.end() ? nullptr : *found;
}

QImage ServedEngine::mapPicture(const wire::Fields& question) {
  QImage picture(number(question.at(2)), number(question.at(3)), QImage::Format_RGB32);
  picture.fill(Qt::white);
  if (const motor::MapWindow* window = windowOf(question.at(1))) {
    QPainter painter(&picture);
    painter_.paint(painter, window->map(), picture.size(), 1, motor::Quality::best);
  }
  return picture;
}

QImage ServedEngine::legendPicture() const {
  const motor::MapWindow* window = windows_.legendOf();
  if (window == nullptr) return {};
  return motor::renderLegend(window->map(), 1).convertToFormat(QImage::Format_RGB32);
}

}  // namespace relay
