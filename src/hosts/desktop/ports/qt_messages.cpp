#include "hosts/desktop/ports/qt_messages.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <array>

#include "motor/window/room_on_screen.h"

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
constexpr int kBesideTitle = 130;  // pixels of a title bar that its icon and buttons take at most

QMessageBox::Icon iconOf(int style) {
  for (const StyleIcon& row : kIcons) {
    if ((style & kIconBits) == row.style) return row.icon;
  }
  return QMessageBox::NoIcon;
}

// The toolkit's own estimate is for a title that is not bold, with fewer buttons beside it.
void makeRoomForTitle(const QMessageBox& box) {
  QFont font = QApplication::font("QMdiSubWindowTitleBar");
  font.setBold(true);
  const int wanted = QFontMetrics(font).horizontalAdvance(box.windowTitle()) + kBesideTitle;
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  auto* room = new QSpacerItem(qMin(wanted, motor::roomOnScreen(box).width()), 0);
  grid->addItem(room, 0, 0, 1, grid->columnCount());  // owned by the layout
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
    makeRoomForTitle(box);
    box.exec();
    return platform::Button::ok;
  }
  const QPushButton* yes = box.addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
  QPushButton* no = box.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
  box.setEscapeButton(no);
  makeRoomForTitle(box);
  box.exec();
  return box.clickedButton() == yes ? platform::Button::yes : platform::Button::no;
}

}  // namespace desktop
