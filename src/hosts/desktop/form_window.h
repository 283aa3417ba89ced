#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <vector>

#include "forms/form.h"
#include "hosts/desktop/looks.h"
#include "hosts/desktop/pop_up_menus.h"
#include "hosts/desktop/views/control_view.h"

namespace desktop {

// A form on the screen: its controls as widgets, back to front, and the window's own events.
class FormWindow : public QWidget {
 public:
  // `owner` is the window that this one stays in front of, or null.
  FormWindow(forms::Form& form, ProgramCalls& calls, QWidget* owner);
  ~FormWindow() override;

  [[nodiscard]] forms::Form& form() const { return form_; }
  // The view of a control; null for one that is never seen.
  [[nodiscard]] ControlView* viewOf(const forms::Control& control) const;

  // A property of the form itself was written.
  void syncForm(forms::Property property);
  // Turns the pages that the model has turned.
  void turnPages();
  // Shows what the user's own action changed in the model.
  void syncChoices();
  // A control has been shown or hidden.
  void visibilityWritten(const forms::Control& control);
  // The window goes because its owner goes.
  void closeWithOwner();
  // Paints at once what the view shows, without an event loop; all but the map where the view has just appeared.
  void paintNow(const ControlView& view, forms::Property written);
  void markCurrentTool(const std::string& command);

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

  forms::Form& form_;
  ProgramCalls& calls_;
  FormLook look_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::map<const forms::Control*, ControlView*> viewOf_;
  PopUpMenus popUps_;
  QPointer<QWidget> lostKeyboard_;  // what had the keyboard when it was hidden or disabled
  bool sizeReported_ = true;
  bool reportsPlace_ = false;
  bool wasMinimized_ = false;
};

}  // namespace desktop
