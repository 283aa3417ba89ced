#include "hosts/desktop/views/text_box_view.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "hosts/desktop/views/notice.h"

namespace desktop {
namespace {

// The arrow down leads on, to what has been found for the text.
class Box : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Down) {
      focusNextChild();
    } else {
      QLineEdit::keyPressEvent(event);
    }
  }
};

}  // namespace

TextBoxView::TextBoxView(forms::TextBox& box, QWidget& parent, screen::ProgramCalls& calls)
    : ControlView(box, calls), box_(box) {
  if (box.locked) {
    adopt(new Notice(parent));
    return;
  }
  auto* edit = new Box(&parent);
  connect(edit, &QLineEdit::textEdited, this,
          [this](const QString& text) { act([&] { box_.userEdit(text.toStdString()); }); });
  adopt(edit);
  edit->setPlaceholderText(edit->accessibleName());
}

void TextBoxView::sync(forms::Property property) {
  if (property != forms::Property::Text) return ControlView::sync(property);
  const QString text = QString::fromStdString(box_.text());
  if (auto* notice = dynamic_cast<Notice*>(widget())) notice->setText(text);
  auto* edit = qobject_cast<QLineEdit*>(widget());
  // Setting the same text again would move the cursor under the user's hands.
  if (edit != nullptr && edit->text() != text) edit->setText(text);
}

}  // namespace desktop
