#pragma once

#include <QFrame>
#include <functional>

class QLabel;
class QLineEdit;
class QToolButton;

namespace desktop::pages {

// A row to look for words with, at the lower edge of a page. The keyboard alone is enough: Return and Shift+Return go
// on and back, Escape closes.
class FindBar : public QFrame {
 public:
  explicit FindBar(QWidget& parent);

  // What is looked for changed; the next or previous place is wanted; the bar is to be closed.
  std::function<void(const QString& words)> changed;
  std::function<void(bool forward)> asked;
  std::function<void()> closed;

  [[nodiscard]] QString words() const;
  // Puts the keyboard into the row, with `words` in it if there are any, ready to be typed over.
  void begin(const QString& words);
  // Which of how many places is shown, from 1; 0 of 0 where there is none. `isMore`: there are more than are counted.
  void show(std::size_t place, std::size_t places, bool isMore);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QToolButton* button(Qt::ArrowType arrow, const QString& name, bool forward);

  QLineEdit* words_;
  QLabel* count_;
  QToolButton* previous_;
  QToolButton* next_;
};

}  // namespace desktop::pages
