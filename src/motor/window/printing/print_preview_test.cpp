#include "motor/window/printing/print_preview.h"

#include <QLabel>
#include <QPrintDialog>
#include <QPushButton>
#include <QScreen>

#include "motor/window/map_widget_fixture.h"

namespace motor {
namespace {

class Preview : public MapWidgetTest {
 protected:
  Preview() {
    widget_->setWindowTitle("El atlas");
    widget_->show();
    session_->run("run menu command 112");
    preview_ = widget_->findChild<PrintPreview*>();
  }
  // The field or list that a label belongs to.
  template <typename Field>
  [[nodiscard]] Field* field(const char* label) const {
    for (QLabel* each : preview_->findChildren<QLabel*>()) {
      if (each->text().remove('&') == label) return qobject_cast<Field*>(each->buddy());
    }
    return nullptr;
  }
  [[nodiscard]] QPushButton* button(const char* text) const {
    for (QPushButton* each : preview_->findChildren<QPushButton*>()) {
      if (each->text().remove('&') == text) return each;
    }
    return nullptr;
  }
  QPointer<PrintPreview> preview_;
};

TEST_F(Preview, OpensWithTheMapsTexts) {
  ASSERT_FALSE(preview_.isNull());
  EXPECT_EQ(preview_->windowTitle(), "Imprimir el mapa");
  ASSERT_NE(field<QLineEdit>("Título:"), nullptr);
  EXPECT_EQ(field<QLineEdit>("Título:")->text(), "El atlas");
  EXPECT_EQ(field<QLineEdit>("Fuente:")->text(), "El atlas") << "the label has the word";
  EXPECT_EQ(preview_->page().texts().source, "Fuente: El atlas");
  field<QLineEdit>("Fuente:")->clear();
  EXPECT_EQ(preview_->page().texts().source, "");
  EXPECT_EQ(field<QComboBox>("Orientación:")->currentText(), "Horizontal") << "the map is wide";
  EXPECT_EQ(preview_->printer().pageLayout().orientation(), QPageLayout::Landscape);
}

TEST_F(Preview, ThePageFollowsWhatIsChosen) {
  const MapPage::Layout before = preview_->page().layoutFor({700, 1000});
  field<QLineEdit>("Título:")->clear();
  EXPECT_LT(preview_->page().layoutFor({700, 1000}).map.top(), before.map.top());
  field<QComboBox>("Mapa:")->setCurrentIndex(1);
  EXPECT_EQ(preview_->page().layoutFor({700, 1000}).map.size(), QSizeF(400, 300));
  field<QComboBox>("Orientación:")->setCurrentIndex(0);
  EXPECT_EQ(preview_->printer().pageLayout().orientation(), QPageLayout::Portrait);
  field<QComboBox>("Papel:")->setCurrentIndex(1);
  EXPECT_EQ(preview_->printer().pageLayout().pageSize().id(), QPageSize::A3);
}

TEST_F(Preview, KeepsTheMapOfTheMomentWhenItWasOpened) {
  const double ratio = preview_->page().layoutFor({700, 1000}).ratio;
  session_->run("set map zoom 10 units \"km\"");
  EXPECT_EQ(preview_->page().layoutFor({700, 1000}).ratio, ratio);
}

TEST_F(Preview, PrintsThroughTheToolkitsDialog) {
  const QString file = QString::fromStdString((folder_.path() / "mapa.pdf").string());
  button("Imprimir...")->click();
  auto* dialog = preview_->findChild<QPrintDialog*>();
  ASSERT_NE(dialog, nullptr);
  preview_->printer().setOutputFormat(QPrinter::PdfFormat);
  preview_->printer().setOutputFileName(file);
  dialog->accepted();
  EXPECT_GT(std::filesystem::file_size(file.toStdString()), 3000U);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(preview_.isNull()) << "its work is done";
}

// The default button is what Enter presses in a field.
TEST_F(Preview, EnterInAFieldPrintsAndKeepsWhatIsWritten) {
  for (QWidget* place :
       {static_cast<QWidget*>(field<QLineEdit>("Título:")), static_cast<QWidget*>(field<QComboBox>("Papel:"))}) {
    button("Imprimir...")->setFocus();
    place->setFocus();
    QCoreApplication::processEvents();
    ASSERT_TRUE(place->hasFocus());
    EXPECT_TRUE(button("Imprimir...")->isDefault());
    EXPECT_FALSE(button("Cerrar")->isDefault());
  }
  QTest::keyClicks(field<QLineEdit>("Subtítulo:"), "Otro");
  QTest::keyClick(field<QLineEdit>("Subtítulo:"), Qt::Key_Return);
  EXPECT_TRUE(preview_->isVisible());
  EXPECT_NE(preview_->findChild<QPrintDialog*>(), nullptr);
  EXPECT_EQ(preview_->page().texts().subtitle, "Otro");
}

TEST_F(Preview, IsSeenWholeAndGivesItsTextsTheRoomThereIs) {
  EXPECT_TRUE(preview_->screen()->availableGeometry().contains(preview_->frameGeometry()));
  EXPECT_LT(preview_->minimumSizeHint().height(), 500) << "a small screen has room for it";
  for (const int more : {0, 300}) {
    preview_->resize(preview_->width() + more, preview_->height());
    QCoreApplication::processEvents();
    EXPECT_GT(field<QLineEdit>("Título:")->width(), preview_->width() * 3 / 10) << more;
  }
}

TEST_F(Preview, ClosesWithoutPrinting) {
  button("Cerrar")->click();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(preview_.isNull());
}

}  // namespace
}  // namespace motor
