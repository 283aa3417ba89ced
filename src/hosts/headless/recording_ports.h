#pragma once

#include <map>
#include <string>
#include <vector>

#include "hosts/headless/recorder.h"
#include "hosts/headless/recording_engine.h"
#include "platform/ports.h"

// The ports of a host, each call of which is written.
namespace headless {

class RecordingWindows : public platform::WindowSystem {
 public:
  RecordingWindows(platform::WindowSystem& inner, Recorder& recorder) : inner_(inner), recorder_(recorder) {}

  [[nodiscard]] platform::WindowHandle find(const std::string& title) override;
  void close(platform::WindowHandle window) override;
  void setParent(platform::WindowHandle child, platform::WindowHandle parent) override;
  void setZOrder(platform::WindowHandle window, platform::ZOrder order, unsigned flags) override;

 private:
  platform::WindowSystem& inner_;
  Recorder& recorder_;
  std::map<platform::WindowHandle, std::string> titles_;  // of windows found
};

// Calls on a registry answer with a status; a failure that waits for one becomes its status.
class RecordingRegistry : public platform::Registry {
 public:
  RecordingRegistry(platform::Registry& inner, Recorder& recorder) : inner_(inner), recorder_(recorder) {}

  [[nodiscard]] Opened openKey(const std::string& path, std::uint32_t access) override;
  [[nodiscard]] Queried queryValue(platform::RegistryKey key, const std::string& name,
                                   std::uint32_t bufferSize) override;
  void closeKey(platform::RegistryKey key) override { inner_.closeKey(key); }

 private:
  platform::Registry& inner_;
  Recorder& recorder_;
};

class RecordingFiles : public platform::Files {
 public:
  RecordingFiles(platform::Files& inner, Recorder& recorder) : inner_(inner), recorder_(recorder) {}

  [[nodiscard]] std::string lookUp(const std::string& path) override;
  [[nodiscard]] std::vector<std::string> folders(const std::string& path) override { return inner_.folders(path); }
  void copy(const std::string& from, const std::string& to) override;

 private:
  platform::Files& inner_;
  Recorder& recorder_;
};

class RecordingPrograms : public platform::Programs {
 public:
  RecordingPrograms(platform::Programs& inner, Recorder& recorder) : inner_(inner), recorder_(recorder) {}

  void start(const std::string& commandLine) override;
  void end() override;

 private:
  platform::Programs& inner_;
  Recorder& recorder_;
};

class RecordingMessages : public platform::Messages {
 public:
  RecordingMessages(platform::Messages& inner, Recorder& recorder) : inner_(inner), recorder_(recorder) {}

  platform::Button show(const std::string& text, int style, const std::string& title) override;

 private:
  platform::Messages& inner_;
  Recorder& recorder_;
};

class RecordingDialogs : public platform::Dialogs {
 public:
  RecordingDialogs(platform::Dialogs& inner, Recorder& recorder) : inner_(inner), recorder_(recorder) {}

  [[nodiscard]] std::string save(const std::string& title, const std::string& filter, const std::string& name) override;
  void help(const std::string& file, int command) override;

 private:
  platform::Dialogs& inner_;
  Recorder& recorder_;
};

// All ports of a host, written.
class RecordingPorts {
 public:
  RecordingPorts(const platform::Ports& inner, Recorder& recorder);

  [[nodiscard]] platform::Ports ports();
  [[nodiscard]] RecordingEngines& engines() { return engines_; }

 private:
  RecordingEngines engines_;
  RecordingWindows windows_;
  RecordingRegistry registry_;
  RecordingFiles files_;
  RecordingPrograms programs_;
  RecordingMessages messages_;
  RecordingDialogs dialogs_;
  std::string applicationFolder_;
};

}  // namespace headless
