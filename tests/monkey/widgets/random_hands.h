#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace monkey {

// The mouse and the keyboard in the hands of somebody who knows nothing: each time one thing is done to some widget on
// the screen, as the toolkit gets it from a desktop. The same seed does the same to the same windows.
class RandomHands {
 public:
  explicit RandomHands(std::uint64_t seed) : random_(seed) {}

  // Does something, and says what. Whatever opens a dialog returns when that is closed.
  std::string act();

 private:
  struct Habit {
    int weight;
    std::string (RandomHands::*deed)(QWidget& widget);
  };
  [[nodiscard]] static const std::vector<Habit>& habits();

  [[nodiscard]] int below(int count) { return static_cast<int>(random_() % static_cast<std::uint64_t>(count)); }
  [[nodiscard]] bool onceIn(int times) { return below(times) == 0; }
  [[nodiscard]] QWidget* someWidget();
  [[nodiscard]] QPoint somewhereIn(const QWidget& widget);

  std::string click(QWidget& widget);
  std::string doubleClick(QWidget& widget);
  std::string rightClick(QWidget& widget);
  std::string drag(QWidget& widget);
  std::string move(QWidget& widget);
  std::string wheel(QWidget& widget);
  std::string key(QWidget& widget);
  std::string typeText(QWidget& widget);
  std::string focus(QWidget& widget);
  std::string resize(QWidget& widget);
  std::string minimize(QWidget& widget);
  std::string close(QWidget& widget);

  std::mt19937_64 random_;
};

// How a widget is called in a log: its name, else its class.
[[nodiscard]] std::string nameOf(const QWidget& widget);

}  // namespace monkey
