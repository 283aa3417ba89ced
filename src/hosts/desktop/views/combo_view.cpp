#include "hosts/desktop/views/combo_view.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QWheelEvent>

namespace desktop {
namespace {

constexpr int kMostRows = 15;  // of an open list; the rest is scrolled to

// Each pick may open a map: a wheel that only passes by picks nothing, one turned over the combo that has the keyboard
// picks the next item, notch by notch. Enter opens the list, in which it picks.
class Combo : public QComboBox {
 public:
  explicit Combo(QWidget& parent) : QComboBox(&parent) { setFocusPolicy(Qt::StrongFocus); }

 protected:
  // Its border tells that the pointer is on it, also where it has left while a list or a menu was open: then the
  // toolkit paints nothing anew.
  bool event(QEvent* event) override {
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) update();
    return QComboBox::event(event);
  }
  void wheelEvent(QWheelEvent* event) override {
    if (!hasFocus()) return event->ignore();
    event->accept();
    turned_ += event->angleDelta().y();
    const int notches = turned_ / kWheelNotch;
    turned_ -= notches * kWheelNotch;
    const int index = qBound(0, currentIndex() - notches, count() - 1);
    if (notches == 0 || index == currentIndex() || (currentIndex() < 0 && notches > 0)) return;
    setCurrentIndex(index);
    emit activated(index);
  }
  void focusOutEvent(QFocusEvent* event) override {
    turned_ = 0;
    QComboBox::focusOutEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return showPopup();
    // A tab is no letter to look for.
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) return event->ignore();
    QComboBox::keyPressEvent(event);
  }
  // With nothing chosen the place holder stands in the box, less strong than a choice.
  void paintEvent(QPaintEvent* event) override {
    if (isEditable() || currentIndex() >= 0) {
      QComboBox::paintEvent(event);
      return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect box = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(box.adjusted(kTextInset, 0, 0, 0), Qt::AlignVCenter, placeholderText());
  }
  void showPopup() override {
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + kPopupExtra);
    QComboBox::showPopup();
    // Nothing is chosen: the keys begin before the first item, which the view has marked as current.
    if (currentIndex() < 0) view()->setCurrentIndex(QModelIndex());
  }

 private:
  static constexpr int kWheelNotch = 120;  // of a wheel event's angle
  static constexpr int kTextInset = 1;
  static constexpr int kPopupExtra = 36;  // scroll bar and margins

  int turned_ = 0;  // less than a notch, for wheels that turn smoothly
};

}  // namespace

ComboView::ComboView(forms::ItemList& list, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(list, calls), list_(list), combo_(new Combo(parent)) {
  combo_->setView(new QListView(combo_));  // the style sheet reaches its items
  combo_->setMaxVisibleItems(kMostRows);
  combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(combo_, &QComboBox::activated, this, [this](int index) { act([this, index] { list_.userPick(index); }); });
  if (auto* editable = dynamic_cast<forms::EditableCombo*>(&list)) {
    combo_->setEditable(true);
    combo_->setInsertPolicy(QComboBox::NoInsert);
    combo_->setCompleter(nullptr);
    connect(combo_->lineEdit(), &QLineEdit::textEdited, this,
            [this, editable](const QString& text) { act([&] { editable->userEdit(text.toStdString()); }); });
  }
  adopt(combo_);
  combo_->setPlaceholderText(combo_->accessibleName());
  if (QLineEdit* edit = combo_->lineEdit()) {
    edit->setFont(combo_->font());
    edit->setPlaceholderText(combo_->accessibleName());
  }
  for (const std::string& item : list.items()) itemAdded(item);
}

void ComboView::sync(forms::Property property) {
  if (property == forms::Property::ListIndex || property == forms::Property::Text) return showChoice();
  ControlView::sync(property);
}

void ComboView::itemAdded(const std::string& item) {
  const QSignalBlocker quiet(combo_);
  combo_->addItem(QString::fromStdString(item));
  showChoice();
}

void ComboView::cleared() {
  const QSignalBlocker quiet(combo_);
  combo_->clear();
  showChoice();
}

void ComboView::showChoice() {
  const QSignalBlocker quiet(combo_);
  const QString text = QString::fromStdString(list_.text());
  QLineEdit* edit = combo_->lineEdit();
  if (edit == nullptr) {
    combo_->setCurrentIndex(list_.listIndex());
  } else {
    const int cursor = edit->text() == text ? edit->cursorPosition() : 0;
    combo_->setCurrentIndex(list_.listIndex());
    edit->setText(text);
    edit->setCursorPosition(cursor);
  }
  if (control().toolTipText.empty()) combo_->setToolTip(text);
}

}  // namespace desktop
