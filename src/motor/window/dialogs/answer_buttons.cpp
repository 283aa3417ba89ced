#include "motor/window/dialogs/answer_buttons.h"

#include <QPushButton>

namespace motor {

QDialogButtonBox* answerButtons(QDialog& dialog) {
  auto* buttons = new QDialogButtonBox(&dialog);  // a default button stays one only within its dialog
  buttons->addButton(QStringLiteral("Aceptar"), QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons->addButton(QStringLiteral("Cancelar"), QDialogButtonBox::RejectRole);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  return buttons;
}

}  // namespace motor
