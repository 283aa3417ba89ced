#pragma once

#include <QDialog>
#include <QDialogButtonBox>

namespace motor {

// The buttons that accept and reject a dialog; the dialog owns them once they are in its layout. Enter accepts.
[[nodiscard]] QDialogButtonBox* answerButtons(QDialog& dialog);

}  // namespace motor
