#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTimer>

#include "motor/window/printing/map_page.h"

namespace motor {

// A map's page as it will be printed, with what the user may change about it; from here it goes to the toolkit's
// printer dialog, which also makes PDF files. What is shown, printed and put in a file is painted by one MapPage. The
// map is that of the moment when the dialog was made.
class PrintPreview : public QDialog {
 public:
  PrintPreview(Map map, const PageTexts& texts, QWidget* parent);

  // The page as it is wanted at present.
  [[nodiscard]] MapPage page() const;
  [[nodiscard]] QPrinter& printer() { return printer_; }

 private:
  [[nodiscard]] QLayout* makeOptions(const PageTexts& texts);
  [[nodiscard]] QLineEdit* textField(const QString& text);
  [[nodiscard]] QCheckBox* choice(const QString& text);
  [[nodiscard]] QComboBox* list(const QStringList& entries);
  void followPaper();
  void askAndPrint();

  Map map_;
  std::shared_ptr<MapPainter> painter_ = std::make_shared<MapPainter>();
  QPrinter printer_;
  QTimer typing_;  // runs while a text is being changed
  // Owned by the dialog.
  QPrintPreviewWidget* preview_;
  QLineEdit* title_ = nullptr;
  QLineEdit* subtitle_ = nullptr;
  QLineEdit* source_ = nullptr;
  QLineEdit* date_ = nullptr;
  QCheckBox* legend_ = nullptr;
  QCheckBox* scaleBar_ = nullptr;
  QCheckBox* northArrow_ = nullptr;
  QComboBox* paper_ = nullptr;
  QComboBox* orientation_ = nullptr;
  QComboBox* mapSize_ = nullptr;
};

}  // namespace motor
