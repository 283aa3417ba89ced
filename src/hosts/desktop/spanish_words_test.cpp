#include "hosts/desktop/spanish_words.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>
#include <memory>
#include <set>
#include <string>

#include "hosts/desktop/user_hands.h"

namespace desktop {
namespace {

// Notes the texts that the toolkit asks for and has no Spanish words for. The last translator that is installed is
// asked first.
class MissingWords : public QTranslator {
 public:
  MissingWords() {
    EXPECT_TRUE(toolkit_.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    QApplication::installTranslator(this);
  }
  ~MissingWords() override { QApplication::removeTranslator(this); }

  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* source, const char* remark, int n) const override {
    ++asked_;
    const bool isKnown = !toolkit_.translate(context, source, remark, n).isNull() ||
                         !own_.translate(context, source, remark, n).isNull();
    if (!isKnown) missing_.insert(std::string(context) + ": " + source);
    return {};
  }
  [[nodiscard]] int asked() const { return asked_; }
  [[nodiscard]] const std::set<std::string>& missing() const { return missing_; }

 private:
  QTranslator toolkit_;
  SpanishWords own_;
  mutable int asked_ = 0;
  mutable std::set<std::string> missing_;
};

// What the toolkit complains of while it lives.
class Complaints {
 public:
  Complaints() {
    heard().clear();
    before_ = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
      if (text.contains(QLatin1String("QFont"))) heard() += text;
    });
  }
  ~Complaints() { qInstallMessageHandler(before_); }
  static QStringList& heard() {
    static QStringList all;
    return all;
  }

 private:
  QtMessageHandler before_ = nullptr;
};

// Opens the printer's properties from the print dialog, paints them, and closes them.
void visitProperties(QPrintDialog& dialog) {
  bool isSeen = false;
  QTimer::singleShot(0, [&isSeen] {
    auto* properties = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (properties == nullptr) return;
    isSeen = true;
    (void)properties->grab();
    properties->reject();
  });
  auto* button = dialog.findChild<QPushButton*>(QStringLiteral("properties"));
  ASSERT_NE(button, nullptr);
  button->click();
  EXPECT_TRUE(isSeen);
}

TEST(SpanishWordsTest, NoDialogOfTheToolkitIsLeftInEnglish) {
  const MissingWords words;
  const Complaints complaints;
  {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog print(&printer);
    print.show();
    hands::settle();
    visitProperties(print);
    QPrintPreviewDialog preview(&printer);
    preview.show();
    hands::settle();
  }
  {
    QFileDialog save;
    save.setAcceptMode(QFileDialog::AcceptSave);
    save.setViewMode(QFileDialog::Detail);
    save.show();
    hands::settle();
    QMessageBox message;
    message.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel | QMessageBox::Yes | QMessageBox::No |
                               QMessageBox::Save | QMessageBox::Close);
    message.show();
    hands::settle();
  }
  {
    QLineEdit line(QStringLiteral("texto"));
    const std::unique_ptr<QMenu> lineMenu(line.createStandardContextMenu());
    QTextBrowser page;
    const std::unique_ptr<QMenu> pageMenu(page.createStandardContextMenu());
  }
  EXPECT_GT(words.asked(), 100);
  for (const std::string& each : words.missing()) ADD_FAILURE() << each;
  EXPECT_EQ(Complaints::heard(), QStringList()) << "the letters of a dialog have a size in points";
}

}  // namespace
}  // namespace desktop
