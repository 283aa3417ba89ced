#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <vector>

#include "forms/form.h"
#include "hosts/desktop/pop_up_menus.h"
#include "hosts/desktop/views/control_view.h"
#include "hosts/screen/displays.h"
#include "hosts/screen/looks.h"

namespace desktop {

// A form on the screen: its controls as widgets, back to front, and the window's own events.
class FormWindow : public QWidget, public screen::FormDisplay {
 public:
  // `owner` is the window that this one stays in front of, or null.
  FormWindow(forms::Form& form, screen::ProgramCalls& calls, QWidget* owner);
  ~FormWindow() override;

  [[nodiscard]] ControlView* viewOf(const forms::Control& control) const override;

  // Shows all that the form and its controls hold.
  void syncAll();
  void syncForm(forms::Property property) override;
  void controlWritten(const forms::Control& control, forms::Property property) override;
  // The window goes because its owner goes.
  void closeWithOwner();
  // All but the map is painted where the control has just appeared.
  void paintNow(const forms::Control& control, forms::Property written) override;
  void markCurrentTool(const std::string& command) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void makeViews();
  // The control that a widget of this window shows, or null.
  [[nodiscard]] const forms::Control* controlOf(const QWidget& widget) const;
  void pointAtForm();
  void goToPane(bool next);
  void turnPage(bool next);
  void reportSize();
  void reportPlace();
  [[nodiscard]] bool isListening() const { return form_.isLoaded(); }

  screen::ProgramCalls& calls_;
  screen::FormLook look_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::map<const forms::Control*, ControlView*> viewOf_;
  PopUpMenus popUps_;
  QPointer<QWidget> lostKeyboard_;  // what had the keyboard when it was hidden or disabled
  bool sizeReported_ = true;
  bool reportsPlace_ = false;
  bool wasMinimized_ = false;
};

}  // namespace desktop
