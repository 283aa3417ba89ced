#include "hosts/desktop/ports/qt_messages.h"

#include <QMessageBox>
#include <QPushButton>
#include <array>

namespace desktop {
namespace {

struct StyleIcon {
  int style;
  QMessageBox::Icon icon;
};

constexpr std::array kIcons{
    StyleIcon{platform::kCritical, QMessageBox::Critical},
    StyleIcon{platform::kQuestion, QMessageBox::Question},
    StyleIcon{platform::kExclamation, QMessageBox::Warning},
    StyleIcon{platform::kInformation, QMessageBox::Information},
};

constexpr int kButtonBits = 0x0F;
constexpr int kIconBits = 0xF0;

QMessageBox::Icon iconOf(int style) {
  for (const StyleIcon& row : kIcons) {
    if ((style & kIconBits) == row.style) return row.icon;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

platform::Button QtMessages::show(const std::string& text, int style, const std::string& title) {
  QMessageBox box(host_.frontWindow());
  box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
  box.setWindowTitle(QString::fromStdString(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(QString::fromStdString(text));
  box.setIcon(iconOf(style));
  if ((style & kButtonBits) != platform::kYesNo) {
    box.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    box.exec();
    return platform::Button::ok;
  }
  const QPushButton* yes = box.addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
  QPushButton* no = box.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes ? platform::Button::yes : platform::Button::no;
}

}  // namespace desktop
