#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

#include "forms/form.h"

namespace desktop {

// Watches over a form's pop-up frames while one is open. The program closes them when the pointer is on the form or on
// some of its controls; to users everything that is not the menu is the form: the other controls, the windows that lie
// in them or in front, Escape, and what is clicked.
class PopUpMenus : public QObject {
 public:
  // `controlOf` gives the control that a widget of the window shows, or null; `close` moves the pointer onto the form.
  PopUpMenus(QWidget& window, forms::Form& form, std::function<const forms::Control*(const QWidget&)> controlOf,
             std::function<void()> close);
  // A pop-up frame has been shown or hidden.
  void update();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool isOutside(const QWidget* widget) const;
  // Whether the event tells that the user has turned to something else than the menu.
  [[nodiscard]] bool turnsAway(const QWidget& widget, const QEvent& event) const;
  [[nodiscard]] const QWidget* pointedAt(const QEvent& event) const;

  QWidget& window_;
  forms::Form& form_;
  std::function<const forms::Control*(const QWidget&)> controlOf_;
  std::function<void()> close_;
};

}  // namespace desktop
