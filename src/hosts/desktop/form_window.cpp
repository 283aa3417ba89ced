#include "hosts/desktop/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <algorithm>

#include "hosts/desktop/artwork.h"
#include "hosts/desktop/focus_order.h"
#include "hosts/desktop/palette_front.h"
#include "hosts/desktop/panes.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/twips.h"
#include "hosts/desktop/views/image_view.h"
#include "hosts/desktop/views/picture_box_view.h"
#include "hosts/desktop/views/tab_control_view.h"
#include "hosts/desktop/views/tab_row.h"
#include "hosts/desktop/views/view_factory.h"
#include "hosts/desktop/window_placement.h"
#include "hosts/screen/pop_up_frames.h"

namespace desktop {
namespace {

Qt::WindowFlags flagsOf(screen::FormLook look) {
  switch (look) {
    case screen::FormLook::splash:
      return Qt::SplashScreen | Qt::FramelessWindowHint;
    case screen::FormLook::palette:
      return Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint;
    case screen::FormLook::window:
      break;
  }
  return Qt::Window;
}

}  // namespace

FormWindow::FormWindow(forms::Form& form, screen::ProgramCalls& calls, QWidget* owner)
    : QWidget(screen::lookOf(form) == screen::FormLook::palette ? owner : nullptr, flagsOf(screen::lookOf(form))),
      FormDisplay(form),
      calls_(calls),
      look_(screen::lookOf(form)),
      popUps_(
          *this, form, [this](const QWidget& widget) { return controlOf(widget); }, [this] { pointAtForm(); }) {
  setObjectName(QString::fromStdString(form.name()));
  setWindowTitle(QString::fromStdString(form.caption()));
  setWindowIcon(artwork::icon("escudo"));
  setMouseTracking(true);
  if (look_ == screen::FormLook::splash) setAttribute(Qt::WA_TranslucentBackground);
  makeViews();
  if (look_ == screen::FormLook::palette) new PaletteFront(*this);  // owned by this
}

FormWindow::~FormWindow() { views_.clear(); }

void FormWindow::makeViews() {
  for (forms::Control* control : form_.controls()) {
    QWidget* parent = this;
    if (const ControlView* container = control->container() == nullptr ? nullptr : viewOf(*control->container())) {
      parent = container->widget();
    }
    auto view = makeView(*control, *parent, calls_);
    if (view == nullptr) continue;
    view->syncAll();
    viewOf_[control] = view.get();
    views_.push_back(std::move(view));
  }
}

void FormWindow::syncAll() {
  setWindowTitle(QString::fromStdString(form_.caption()));
  for (const auto& view : views_) view->syncAll();
}

ControlView* FormWindow::viewOf(const forms::Control& control) const {
  const auto found = viewOf_.find(&control);
  return found == viewOf_.end() ? nullptr : found->second;
}

const forms::Control* FormWindow::controlOf(const QWidget& widget) const {
  for (const QWidget* at = &widget; at != nullptr && at != this; at = at->parentWidget()) {
    const auto shows = [at](const auto& view) { return view->widget() == at; };
    const auto found = std::ranges::find_if(views_, shows);
    if (found != views_.end()) return &(*found)->control();
  }
  return nullptr;
}

void FormWindow::controlWritten(const forms::Control& control, forms::Property property) {
  if (property == forms::Property::Visible && screen::isPopUp(control)) popUps_.update();
}

void FormWindow::syncForm(forms::Property property) {
  switch (property) {
    case forms::Property::Caption:
      setWindowTitle(QString::fromStdString(form_.caption()));
      break;
    case forms::Property::Left:
    case forms::Property::Top: {
      const QPoint place(toPixels(form_.left()), toPixels(form_.top()));
      if (!reportsPlace_ && place != pos()) move(place);
      break;
    }
    default:
      break;
  }
}

void FormWindow::paintNow(const forms::Control& control, forms::Property written) {
  const ControlView* view = viewOf(control);
  if (!isVisible() || view == nullptr || view->widget() == nullptr || !view->widget()->isVisible()) return;
  if (written == forms::Property::Value) return view->widget()->repaint();
  if (written != forms::Property::Visible) return;
  QRegion region = rect();
  for (const auto& other : views_) {
    const bool isMap = dynamic_cast<const PictureBoxView*>(other.get()) != nullptr;
    if (isMap && other->widget()->isVisible()) region -= other->widget()->geometry();
  }
  repaint(region);
  view->widget()->repaint();
}

void FormWindow::markCurrentTool(const std::string& command) {
  const std::string picture = screen::pictureOfCommand(command);
  for (const auto& view : views_) {
    if (auto* image = dynamic_cast<ImageView*>(view.get())) image->setCurrentPicture(picture);
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (!isListening()) return event->accept();
  event->ignore();
  calls_.runWhenFree([this] { form_.userClose(); });
}

void FormWindow::closeWithOwner() {
  calls_.runWhenFree([&form = form_] { form.userClose(); });
}

// The keyboard begins where nothing is started by a key pressed too early.
void FormWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (look_ == screen::FormLook::palette) move(onScreen(pos(), frameGeometry().size(), screen()->availableGeometry()));
  if (focusWidget() != nullptr) return;
  if (QWidget* first = firstChoice(*this)) first->setFocus(Qt::OtherFocusReason);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!sizeReported_) return;
  sizeReported_ = false;
  // One layout for all the steps of a resize that arrive together.
  QTimer::singleShot(0, this, [this] {
    sizeReported_ = true;
    calls_.runWhenFree([this] { reportSize(); });
  });
}

void FormWindow::reportSize() {
  if (!isListening() || isMinimized() || !isVisible()) return;
  const QSize size = frameGeometry().size();
  if (size == QSize(toPixels(form_.width()), toPixels(form_.height()))) return;
  form_.userResize(toTwips(size.width()), toTwips(size.height()));
}

void FormWindow::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (isListening() && isVisible() && !isMinimized()) reportPlace();
}

void FormWindow::reportPlace() {
  if (pos() == QPoint(toPixels(form_.left()), toPixels(form_.top()))) return;
  reportsPlace_ = true;  // half told, the place would be one that the window is not at
  form_.setLeft(toTwips(pos().x()));
  form_.setTop(toTwips(pos().y()));
  reportsPlace_ = false;
}

void FormWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || !isListening()) return;
  const bool minimized = isMinimized();
  if (minimized == wasMinimized_) return;
  wasMinimized_ = minimized;
  calls_.runWhenFree([this, minimized] {
    if (!isListening()) return;
    minimized ? form_.userMinimize() : form_.userRestore();
  });
}

void FormWindow::paintEvent(QPaintEvent*) {
  if (look_ == screen::FormLook::splash) return;
  QPainter painter(this);
  painter.fillRect(rect(), theme::kPaper);
}

void FormWindow::mouseMoveEvent(QMouseEvent* event) {
  if (childAt(event->position().toPoint()) != nullptr) return;  // passed on by a control
  pointAtForm();
}

void FormWindow::pointAtForm() {
  if (isListening() && form_.MouseMove.hasHandlers()) calls_.run([this] { form_.userMouseMove(); });
}

void FormWindow::mouseDoubleClickEvent(QMouseEvent*) {
  if (isListening()) calls_.run([this] { form_.userDoubleClick(); });
}

// Escape closes a palette, and elsewhere takes the pointer off whatever it opened; F6 goes from one part of the window
// to the next, Control and Tab from one page to the next.
void FormWindow::keyPressEvent(QKeyEvent* event) {
  const bool back = event->modifiers().testFlag(Qt::ShiftModifier);
  const bool control = event->modifiers().testFlag(Qt::ControlModifier);
  switch (event->key()) {
    case Qt::Key_Escape:
      if (look_ != screen::FormLook::palette) {
        pointAtForm();
      } else {
        close();
      }
      break;
    case Qt::Key_F6:
      goToPane(!back);
      break;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      if (control) turnPage(!back);
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

void FormWindow::goToPane(bool next) {
  QWidget* target = nextPane(*this, focusWidget(), next);
  if (target == nullptr) return;
  target->window()->activateWindow();
  target->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void FormWindow::turnPage(bool next) {
  TabRow* headings = headingsFor(*this, focusWidget());
  if (headings == nullptr) return;
  headings->window()->activateWindow();
  headings->setFocus(Qt::TabFocusReason);
  headings->turn(next ? 1 : -1);
}

bool FormWindow::focusNextPrevChild(bool next) {
  QWidget* from = focusWidget();
  if (from != nullptr && from != this && !canHaveKeyboard(*from, *this)) {
    // Hidden or disabled under the user's hands: what comes next is not what the user means.
    lostKeyboard_ = from;
    setFocus(Qt::OtherFocusReason);
    return true;
  }
  if (from == nullptr || from == this) from = lostKeyboard_;
  QWidget* target = nextInReadingOrder(*this, from, next);
  if (target == nullptr) return QWidget::focusNextPrevChild(next);
  target->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

}  // namespace desktop
