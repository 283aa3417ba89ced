#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "motor/session/headless_windows.h"
#include "motor/session/session.h"
#include "motor/session/tiny_study.h"
#include "text/failure.h"

namespace motor {

// Windows without a screen that note what a session asks of them.
class NotingWindows final : public HeadlessWindows {
 public:
  std::vector<std::string> notes;
  bool answersCommands = false;
  std::function<void()> whenChanged;
  std::int64_t legend = 0;  // the handle of its window

  void closeMap(MapWindow& window) override {
    notes.emplace_back("close");
    HeadlessWindows::closeMap(window);
  }
  void mapChanged(MapWindow& window) override {
    HeadlessWindows::mapChanged(window);
    if (whenChanged) whenChanged();
  }
  [[nodiscard]] std::int64_t legendHandle() override { return legend; }
  void resize(MapWindow& window, int width, int height) override {
    notes.push_back("resize " + std::to_string(width) + "x" + std::to_string(height));
    HeadlessWindows::resize(window, width, height);
  }
  void maximize(MapWindow& window) override {
    notes.emplace_back("maximize");
    HeadlessWindows::maximize(window);
  }
  void showLegend(MapWindow& /*window*/, std::int64_t parent, int x, int y) override {
    notes.push_back("legend in " + std::to_string(parent) + " at " + std::to_string(x) + "," + std::to_string(y));
  }
  void hideLegend() override { notes.emplace_back("no legend"); }
  [[nodiscard]] bool command(MapWindow& /*window*/, int code) override {
    notes.push_back("command " + std::to_string(code));
    return answersCommands;
  }
};

// A callback object that notes its calls, and may do something at each.
class NotingCallback final : public platform::CallbackObject {
 public:
  std::vector<std::string> calls;
  std::function<void()> whenCalled;

  [[nodiscard]] std::string className() const override { return "Noting"; }
  bool invoke(const std::string& method, const std::string& message) override {
    calls.push_back(method + " " + message);
    if (whenCalled) whenCalled();
    return true;
  }
};

// A session on a tiny study of its own. The study is written once for all tests of a program.
class SessionTest : public testing::Test {
 protected:
  static const tiny::Folder& study() {
    static const tiny::Folder folder;
    static const bool written = [] {
      for (const char* year : {"2001", "2002"}) tiny::writeYear(folder.path() / year, year);
      tiny::writeStatistics(folder.path() / "Estadisticas");
      tiny::writeThematic(folder.path() / "Tematicos");
      return true;
    }();
    EXPECT_TRUE(written);
    return folder;
  }

  // As the program writes paths.
  static std::string writtenPath(const std::string& relative) {
    std::string path = study().path().string() + "\\" + relative;
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
  }

  void run(const std::string& statements) { session.run(statements); }
  std::string eval(const std::string& expression) { return session.eval(expression).text(); }
  void openWorkspace(const std::string& relative) { run("run application \"" + writtenPath(relative) + "\""); }
  void openYear() { openWorkspace("2001\\Año2001.wor"); }

  // The description with which statements are rejected, or "accepted".
  template <typename Action>
  static std::string rejection(Action action) {
    try {
      action();
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.number(), failures::kEngineRejected);
      return failure.description();
    }
    return "accepted";
  }
  std::string rejectedRun(const std::string& statements) {
    return rejection([&] { session.run(statements); });
  }
  std::string rejectedEval(const std::string& expression) {
    return rejection([&] { static_cast<void>(session.eval(expression)); });
  }
  // The column's texts of all rows of the Selection.
  std::vector<std::string> column(const std::string& expression) {
    std::vector<std::string> texts;
    for (run("fetch first from selection"); eval("EOT(Selection)") == "F"; run("fetch next from selection"))
      texts.push_back(eval(expression));
    return texts;
  }
  MapWindow& map() { return *session.mapWindows().front(); }

  NotingWindows windows;
  Session session{windows, {.roots = {study().path()}}};
};

}  // namespace motor
