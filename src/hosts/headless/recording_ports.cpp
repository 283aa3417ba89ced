#include "hosts/headless/recording_ports.h"

#include "forms/control.h"

namespace headless {

using forms::quoted;

platform::WindowHandle RecordingWindows::find(const std::string& title) {
  const auto window = recorder_.ask(
      "findwindow " + quoted(title), [&] { return inner_.find(title); },
      [](platform::WindowHandle found) { return std::string(found == 0 ? "none" : "found"); }, Recorder::Call::windows);
  if (window != 0) titles_[window] = title;
  return window;
}

// A message to no window goes nowhere and is no effect.
void RecordingWindows::close(platform::WindowHandle window) {
  if (window == 0) return;
  recorder_.perform(
      "closewindow " + quoted(titles_[window]), [&] { inner_.close(window); }, Recorder::Call::windows);
}

void RecordingWindows::setParent(platform::WindowHandle child, platform::WindowHandle parent) {
  const Transcript& transcript = recorder_.transcript();
  recorder_.perform(
      "parent " + transcript.handleLabel(child) + " -> " + transcript.handleLabel(parent),
      [&] { inner_.setParent(child, parent); }, Recorder::Call::windows);
}

void RecordingWindows::setZOrder(platform::WindowHandle window, platform::ZOrder order, unsigned flags) {
  recorder_.perform(
      "zorder " + recorder_.transcript().handleName(window) +
          (order == platform::ZOrder::topmost ? " topmost " : " notopmost ") + std::to_string(flags),
      [&] { inner_.setZOrder(window, order, flags); }, Recorder::Call::windows);
}

RecordingRegistry::Opened RecordingRegistry::openKey(const std::string& path, std::uint32_t access) {
  const std::string line = "regopen " + path + " " + std::to_string(access);
  const auto fault = recorder_.waiting(line, Recorder::Call::machine);
  const Opened opened = fault ? Opened{fault->number(), 0} : inner_.openKey(path, access);
  recorder_.transcript().write(line + " = " + std::to_string(opened.status));
  return opened;
}

RecordingRegistry::Queried RecordingRegistry::queryValue(platform::RegistryKey key, const std::string& name,
                                                         std::uint32_t bufferSize) {
  const auto line = [&](const Queried& queried) {
    return "regquery " + name + " " + std::to_string(queried.type) + " " + std::to_string(queried.size);
  };
  Queried queried = inner_.queryValue(key, name, bufferSize);
  if (const auto fault = recorder_.waiting(line(queried), Recorder::Call::machine))
    queried = {.status = fault->number(), .type = 0, .size = 0, .data = {}};
  recorder_.transcript().write(line(queried) + " = " + std::to_string(queried.status));
  return queried;
}

std::string RecordingFiles::lookUp(const std::string& path) {
  return recorder_.ask(
      "dir " + path, [&] { return inner_.lookUp(path); }, [](const std::string& name) { return name; },
      Recorder::Call::machine);
}

void RecordingFiles::copy(const std::string& from, const std::string& to) {
  recorder_.perform(
      "copy " + from + " -> " + to, [&] { inner_.copy(from, to); }, Recorder::Call::machine);
}

void RecordingPrograms::start(const std::string& commandLine) {
  recorder_.perform(
      "shell " + commandLine, [&] { inner_.start(commandLine); }, Recorder::Call::machine);
}

void RecordingPrograms::end() {
  recorder_.transcript().write("end");
  inner_.end();
}

platform::Button RecordingMessages::show(const std::string& text, int style, const std::string& title) {
  return recorder_.ask(
      "msgbox " + std::to_string(style) + " " + quoted(title) + " " + quoted(text),
      [&] { return inner_.show(text, style, title); },
      [](platform::Button button) {
        return std::string(button == platform::Button::yes ? "yes" : button == platform::Button::no ? "no" : "ok");
      },
      Recorder::Call::dialogs);
}

std::string RecordingDialogs::save(const std::string& title, const std::string& filter, const std::string& name) {
  return recorder_.ask(
      "savedialog " + quoted(title) + " " + quoted(filter) + " " + quoted(name),
      [&] { return inner_.save(title, filter, name); }, [](const std::string& result) { return result; },
      Recorder::Call::dialogs);
}

void RecordingDialogs::help(const std::string& file, int command) {
  recorder_.perform(
      "help " + file + " " + std::to_string(command), [&] { inner_.help(file, command); }, Recorder::Call::dialogs);
}

RecordingPorts::RecordingPorts(const platform::Ports& inner, Recorder& recorder)
    : engines_(inner.engines, recorder),
      windows_(inner.windows, recorder),
      registry_(inner.registry, recorder),
      files_(inner.files, recorder),
      programs_(inner.programs, recorder),
      messages_(inner.messages, recorder),
      dialogs_(inner.dialogs, recorder),
      applicationFolder_(inner.applicationFolder) {}

platform::Ports RecordingPorts::ports() {
  return {engines_, windows_, registry_, files_, programs_, messages_, dialogs_, applicationFolder_};
}

}  // namespace headless
