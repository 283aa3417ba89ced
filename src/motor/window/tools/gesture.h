#pragma once

#include <QGuiApplication>
#include <QPointF>
#include <QRectF>
#include <QStyleHints>
#include <utility>

namespace motor {

// A press of the button and where the pointer went with it held: a click until it has moved as far as makes a drag.
class Gesture {
 public:
  void begin(QPointF at) {
    from_ = to_ = at;
    isHeld_ = true;
    isDrag_ = false;
  }
  void moveTo(QPointF at) {
    to_ = at;
    if ((to_ - from_).manhattanLength() > QGuiApplication::styleHints()->startDragDistance()) isDrag_ = true;
  }
  // False when nothing was begun.
  bool end() { return std::exchange(isHeld_, false); }

  [[nodiscard]] bool isHeld() const { return isHeld_; }
  // Whether it is a drag, also after its end.
  [[nodiscard]] bool isDrag() const { return isDrag_; }
  [[nodiscard]] bool isDragging() const { return isHeld_ && isDrag_; }
  [[nodiscard]] QPointF from() const { return from_; }
  [[nodiscard]] QPointF to() const { return to_; }
  [[nodiscard]] QPointF by() const { return to_ - from_; }
  [[nodiscard]] QRectF box() const { return QRectF(from_, to_).normalized(); }

 private:
  QPointF from_;
  QPointF to_;
  bool isHeld_ = false;
  bool isDrag_ = false;
};

}  // namespace motor
