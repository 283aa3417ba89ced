#include "hosts/desktop/tour_guide.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QDrag>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTreeWidget>
#include <ostream>
#include <stdexcept>
#include <utility>

#include "hosts/desktop/user_hands.h"
#include "hosts/desktop/views/tab_row.h"

namespace desktop {
namespace {

constexpr int kLookForDialogs = 20;  // milliseconds

constexpr int kPatience = 10'000;  // milliseconds, until a dialog must be done
constexpr int kShadeStep = 3;      // of 255: nobody sees it
constexpr int kRest = 300;         // milliseconds
constexpr const char* kAnswered = "answered";
const QString kHelpWindow = QStringLiteral("VentanaAyuda");

// The first button where none is the default one; a dialog without buttons is closed.
void pressDefault(QDialog& dialog) {
  const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
  if (buttons.isEmpty()) return dialog.reject();
  for (QPushButton* button : buttons) {
    if (button->isDefault()) return button->click();
  }
  buttons.constFirst()->click();
}

[[noreturn]] void isNotThere(const std::string& what) { throw std::runtime_error("no está en pantalla: " + what); }

}  // namespace

bool NotedPrograms::open(const std::string& file) {
  if (!std::filesystem::exists(file)) return false;
  opened_.push_back(file);
  return true;
}

std::vector<std::string> NotedPrograms::take() { return std::exchange(opened_, {}); }

TourGuide::TourGuide(NotedPrograms& programs, std::filesystem::path pictures, std::ostream& log)
    : programs_(programs), pictures_(std::move(pictures)), log_(log) {
  QObject::connect(&dialogs_, &QTimer::timeout, &dialogs_, [this] { answerDialogs(); });
  dialogs_.start(kLookForDialogs);
  for (const std::filesystem::path& file : {exported(), printed(), takenOut()}) std::filesystem::remove(file);
}

FormWindow& TourGuide::window(const char* formName) const {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    auto* form = dynamic_cast<FormWindow*>(top);
    if (form != nullptr && form->isVisible() && form->objectName() == QString::fromUtf8(formName)) return *form;
  }
  isNotThere(formName);
}

template <class Widget>
Widget& TourGuide::widget(const char* name, const char* formName) const {
  auto* found = window(formName).findChild<Widget*>(QString::fromUtf8(name));
  if (found == nullptr || !found->isVisible()) isNotThere(name);
  return *found;
}
template QAbstractScrollArea& TourGuide::widget(const char*, const char*) const;
template QWidget& TourGuide::widget(const char*, const char*) const;
template QComboBox& TourGuide::widget(const char*, const char*) const;
template QLineEdit& TourGuide::widget(const char*, const char*) const;
template QTreeWidget& TourGuide::widget(const char*, const char*) const;

QWidget& TourGuide::page() const { return *widget<QAbstractScrollArea>("Internet").viewport(); }

QWidget& TourGuide::map() const {
  const auto maps = widget("PictureMapa").findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (QWidget* map : maps) {
    if (map->isVisible()) return *map;
  }
  isNotThere("el mapa");
}

void TourGuide::pickTab(const char* tabControl, int index) const {
  auto* row = dynamic_cast<TabRow*>(&widget(tabControl));
  if (row == nullptr) row = widget(tabControl).findChild<TabRow*>();
  if (row == nullptr) isNotThere(tabControl);
  hands::click(*row, row->tabRect(index).center());
}

std::string TourGuide::pickItem(const char* combo, int index, const char* formName) const {
  auto& list = widget<QComboBox>(combo, formName);
  if (list.count() <= index) throw std::runtime_error("la lista no tiene tantos elementos: " + std::string(combo));
  hands::pick(list, index);
  return list.itemText(index).toStdString();
}

void TourGuide::click(const char* control) const { hands::click(widget(control)); }

void TourGuide::openDocument(const char* control) {
  click(control);
  const std::vector<std::string> opened = programs_.take();
  if (opened.empty()) throw std::runtime_error("no se ha abierto ningún documento: " + std::string(control));
  for (const std::string& file : opened) say("Se abre " + file);
}

void TourGuide::openHelp(const char* control) {
  click(control);
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (!top->isVisible() || top->objectName() != kHelpWindow) continue;
    step("La ayuda, en una ventana propia", "ayuda");
    top->close();
    return hands::settle();
  }
  isNotThere("la ayuda");
}

// Who drags waits until the drag is over.
void TourGuide::takeOut(QWidget& widget, QPoint from, QPoint to, const std::string& what, const std::string& picture) {
  bool isTaken = false;
  QTimer::singleShot(0, &widget, [&] {
    const auto* drag = widget.findChild<QDrag*>();
    if (drag == nullptr) return;
    const auto image = qvariant_cast<QImage>(drag->mimeData()->imageData());
    isTaken = image.save(QString::fromStdString(takenOut().string()));
    tryStep(what, picture, {drag->pixmap(), widget.mapToGlobal(to) + QPoint(0, kPictureTitleHeight) - drag->hotSpot()});
    QDrag::cancel();
  });
  hands::drag(widget, from, to);
  if (!isTaken) isNotThere("lo que se arrastra");
  say("Arrastrado: " + takenOut().string());
}

void TourGuide::pickFromMenu(QWidget& widget, QPoint at, const char* entry) const {
  hands::askForMenu(widget, at);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (menu == nullptr) isNotThere("un menú");
  for (QAction* action : menu->actions()) {
    if (action->text().remove(QLatin1Char('&')) != QString::fromUtf8(entry) || !action->isEnabled()) continue;
    menu->setActiveAction(action);
    return hands::press(*menu, Qt::Key_Return);
  }
  menu->close();
  isNotThere(entry);
}

void TourGuide::rest() const {
  QEventLoop loop;
  QTimer::singleShot(kRest, &loop, &QEventLoop::quit);
  loop.exec();
}

void TourGuide::finishDialogs() const {
  QElapsedTimer clock;
  clock.start();
  while (QApplication::activeModalWidget() != nullptr && clock.elapsed() < kPatience) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  if (QApplication::activeModalWidget() != nullptr) throw std::runtime_error("un diálogo no termina");
}

void TourGuide::say(const std::string& what) const { log_ << "      " << what << '\n'; }

void TourGuide::step(const std::string& what, const std::string& picture, const Carried& carried) {
  hands::settle();
  ++steps_;
  const std::string number = QStringLiteral("%1").arg(steps_, 2, 10, QLatin1Char('0')).toStdString();
  log_ << number << "  " << what << '\n';
  write(number + "-" + picture + ".png", carried);
}

void TourGuide::tryStep(const std::string& what, const std::string& picture, const Carried& carried) {
  try {
    step(what, picture, carried);
  } catch (const std::runtime_error& problem) {
    say(problem.what());
  }
}

void TourGuide::write(const std::string& picture, const Carried& carried) {
  const std::filesystem::path file = pictures_ / picture;
  if (!writeSmall(pictureOfScreen(carried), QString::fromStdString(file.string()), kShadeStep)) {
    throw std::runtime_error("no se pudo guardar " + file.string());
  }
  say(file.string());
}

void TourGuide::answerDialogs() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || answering_ || dialog->property(kAnswered).toBool()) return;
  answering_ = true;
  dialog->setProperty(kAnswered, true);
  try {
    answer(*dialog);
  } catch (const std::runtime_error& problem) {
    // The toolkit, in whose loop this runs, lets no failure through.
    say(problem.what());
    dialog->reject();
  }
  answering_ = false;
}

void TourGuide::answer(QDialog& dialog) {
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
    say("Mensaje: " + box->text().toStdString());
    pressDefault(dialog);
  } else if (auto* save = qobject_cast<QFileDialog*>(&dialog)) {
    step("El diálogo «" + save->windowTitle().toStdString() + "»", "guardar-como");
    auto* name = save->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (name != nullptr) name->setText(QString::fromStdString(exported().string()));
    dialog.accept();
  } else if (dialog.inherits("QAbstractPrintDialog")) {
    step("El diálogo de la impresora", "impresora");
    auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
    if (file != nullptr) file->setText(QString::fromStdString(printed().string()));
    dialog.accept();
  } else {
    step("El diálogo «" + dialog.windowTitle().toStdString() + "»", dialogPicture_);
    pressDefault(dialog);
  }
}

}  // namespace desktop
