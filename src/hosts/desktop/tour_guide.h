#pragma once

#include <QString>
#include <QTimer>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

#include "hosts/desktop/form_window.h"
#include "hosts/desktop/ports/known_programs.h"
#include "hosts/desktop/screen_picture.h"

class QDialog;
class QComboBox;

namespace desktop {

// Opens no program: notes the documents that the user would see.
class NotedPrograms : public DesktopPrograms {
 public:
  [[nodiscard]] bool has(Stand) const override { return true; }
  // False where there is no such file.
  bool open(const std::string& file) override;
  // The documents opened since the last call.
  [[nodiscard]] std::vector<std::string> take();

 private:
  std::vector<std::string> opened_;
};

// What a tour needs: the program's widgets by name, a picture of each step, and an answer to every dialog: its default
// button; a save dialog and a printer get a file beside the pictures. Whatever is looked for and
// not found ends the tour with a std::runtime_error.
class TourGuide {
 public:
  // Pictures go into `pictures`, which exists; what happens is written to `log`. All outlive the guide.
  TourGuide(NotedPrograms& programs, std::filesystem::path pictures, std::ostream& log);

  // The window of a form, or a widget of one by its control's name, as it is seen.
  [[nodiscard]] FormWindow& window(const char* formName) const;
  template <class Widget = QWidget>
  [[nodiscard]] Widget& widget(const char* name, const char* formName = "frmPrincipal") const;
  // What the map is painted in, and a table's page.
  [[nodiscard]] QWidget& map() const;
  [[nodiscard]] QWidget& page() const;

  void pickTab(const char* tabControl, int index) const;
  // Gives the text of the item.
  std::string pickItem(const char* combo, int index, const char* formName = "frmPrincipal") const;
  void click(const char* control) const;
  // Clicks what opens a document, and says which it was.
  void openDocument(const char* control);
  // Clicks what opens the help, takes its picture and closes it.
  void openHelp(const char* control);

  // Drags a picture out of the widget, takes a picture of the screen meanwhile, and keeps what whoever takes it would
  // get; nobody does.
  void takeOut(QWidget& widget, QPoint from, QPoint to, const std::string& what, const std::string& picture);

  // Picks the entry from the context menu of what is there.
  void pickFromMenu(QWidget& widget, QPoint at, const char* entry) const;
  // Gives a map that was moved the time to be painted anew.
  void rest() const;
  // The name of the picture of the dialogs that come next.
  void expectDialog(std::string picture) { dialogPicture_ = std::move(picture); }
  // Lets the dialogs that are open be answered.
  void finishDialogs() const;

  // Takes a picture of all that is shown.
  void step(const std::string& what, const std::string& picture, const Carried& carried = {});
  void say(const std::string& what) const;
  // What a save dialog and a printer write.
  [[nodiscard]] std::filesystem::path exported() const { return pictures_ / "exportada.html"; }
  // What was dragged out.
  [[nodiscard]] std::filesystem::path takenOut() const { return pictures_ / "arrastrado.png"; }
  [[nodiscard]] std::filesystem::path printed() const { return pictures_ / "impreso.pdf"; }

 private:
  void answerDialogs();
  void answer(QDialog& dialog);
  // The same in an event of the toolkit's, which lets no failure through.
  void tryStep(const std::string& what, const std::string& picture, const Carried& carried);
  void write(const std::string& picture, const Carried& carried);

  NotedPrograms& programs_;
  std::filesystem::path pictures_;
  std::ostream& log_;
  QTimer dialogs_;
  bool answering_ = false;
  std::string dialogPicture_ = "dialogo";
  int steps_ = 0;
};

}  // namespace desktop
