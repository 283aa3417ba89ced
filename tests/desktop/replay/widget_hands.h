#pragma once

#include <QWidget>
#include <functional>

#include "hosts/desktop/qt_host.h"
#include "hosts/headless/hands.h"

namespace desktop_replay {

// Hands on the program's widgets: mouse and keys, whether a widget can be seen or not.
class WidgetHands : public headless::Hands {
 public:
  // The host outlives this. `settle` lets everything happen that waits; what the program threw leaves it.
  WidgetHands(desktop::QtHost& host, std::function<void()> settle) : host_(host), settle_(std::move(settle)) {}

  void click(forms::Control& control) override;
  void pick(forms::Control& control, int index) override;
  void enter(forms::Control& control) override;
  void release(forms::Control& control) override { click(control); }
  void pointAt(forms::Control& control) override;
  void type(forms::Control& control, const std::string& text) override;
  void edit(forms::Control& control, const std::string& text) override;
  void doubleClick(forms::Form& form) override;
  void close(forms::Form& form) override;
  void resize(forms::Form& form, forms::Twips width, forms::Twips height) override;
  void minimize(forms::Form& form) override;
  void restore(forms::Form& form) override;
  void tick(forms::Form& form) override;

 private:
  [[nodiscard]] QWidget& widgetOf(const forms::Control& control, const char* what) const;
  [[nodiscard]] desktop::FormWindow& windowOf(const forms::Form& form) const;
  // Of a window that is not there nobody can touch anything.
  [[nodiscard]] bool isThere(const forms::Control& control) const { return host_.windowOf(control.form()) != nullptr; }
  // Its whole text is chosen and gone, or another one is put in its place.
  void replaceText(QWidget& box, const QString& text) const;

  desktop::QtHost& host_;
  std::function<void()> settle_;
};

}  // namespace desktop_replay
