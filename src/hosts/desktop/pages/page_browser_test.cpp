#include "hosts/desktop/pages/page_browser.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPrintPreviewDialog>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextTable>
#include <QWheelEvent>

#include "hosts/desktop/pages/find_bar.h"
#include "hosts/desktop/test_files.h"
#include "hosts/desktop/user_hands.h"

namespace desktop::pages {
namespace {

class PageBrowsers : public ::testing::Test {
 protected:
  void SetUp() override {
    write("fuera.html", "<title>Fuera</title>fuera");
    write("Veldoria/Tablas/HTML/tabla.html",
          "<title>Una tabla</title><p>Defunción y defuncion</p><table border=1><tr><td>Año<td>Tasa<tr><td>1999<td>9,1"
          "</table><p><a href='otra.html'>otra</a> <a href='#fin'>fin</a> <a href='../../../fuera.html'>fuera</a>"
          "<p id=fin>Fin<img src='mapa.png'><img src='../../../fuera.png'>");
    write("Veldoria/Tablas/HTML/otra.html", "otra página");
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.save(path("Veldoria/Tablas/HTML/mapa.png"));
    picture.save(path("fuera.png"));
    browser.resize(500, 400);
    browser.show();
    browser.activateWindow();
    open("Veldoria/Tablas/HTML/tabla.html");
    hands::settle();
  }
  void write(const char* name, const char* text) { testing::writeFile(path(name), text); }
  void open(const char* name) { browser.openPage(path(name), StudyFolder(path("Veldoria"))); }
  [[nodiscard]] QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
  void follow(const char* address) { browser.setSource(QUrl(QString::fromUtf8(address))); }
  [[nodiscard]] std::string notice() const {
    const auto* label = browser.findChild<QLabel*>(QStringLiteral("AvisoPagina"));
    return label->isVisible() ? label->text().toStdString() : "";
  }
  [[nodiscard]] std::string page() const { return browser.pageName().toStdString(); }
  [[nodiscard]] QLineEdit& words() { return *browser.findChild<QLineEdit*>(); }
  // What the row to find words says of the places.
  [[nodiscard]] std::string places() const {
    return browser.findChild<FindBar*>()->findChild<QLabel*>()->text().toStdString();
  }
  [[nodiscard]] QList<QAction*> menu() {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {10, 10}, browser.mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(browser.viewport(), &event);
    const auto menus = browser.findChildren<QMenu*>();
    return menus.isEmpty() ? QList<QAction*>() : menus.constLast()->actions();
  }
  [[nodiscard]] bool isOffered(const char* entry) {
    for (const QAction* action : menu()) {
      if (QString(action->text()).remove(u'&').startsWith(QString::fromUtf8(entry))) return action->isEnabled();
    }
    return false;
  }
  static void closePreviews() {
    while (QWidget* modal = QApplication::activeModalWidget()) {
      modal->close();
      hands::settle();
    }
  }
  void turnWheel(int steps) {
    QWheelEvent event({10, 10}, browser.mapToGlobal(QPoint(10, 10)), {}, {0, 120 * steps}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(browser.viewport(), &event);
  }

  QTemporaryDir folder;
  PageBrowser browser{nullptr};
};

TEST_F(PageBrowsers, GoToThePlacesOfAPageThatItsLinksName) {
  std::string text = "<h1>Ayuda</h1><ul><li><a href='#botones'>Botones</a><li><a href='#fin'>Fin</a></ul>";
  const auto add = [&text](const char* heading) {
    text += heading;
    for (int i = 0; i < 60; ++i) text += "<p>Una línea más</p>";
  };
  add("<h2 id='botones'>Botones</h2>");
  add("<h2>Tablas</h2>");
  add("<dl><dt id='fin'>Fin<dd>Lo último</dl>");
  write("Veldoria/Ayuda/Ayuda.html", text.c_str());
  open("Veldoria/Ayuda/Ayuda.html");
  hands::settle();
  const auto followed = [this](const char* link) {
    follow(link);
    hands::settle();
    return browser.verticalScrollBar()->value();
  };
  ASSERT_EQ(browser.verticalScrollBar()->value(), 0);
  const int buttons = followed("#botones");
  EXPECT_GT(buttons, 0);
  EXPECT_GT(followed("#fin"), buttons);
  EXPECT_EQ(followed("#botones"), buttons);
}

TEST_F(PageBrowsers, ShowAPageByItsTitleOrName) {
  EXPECT_EQ(page(), "Una tabla");
  EXPECT_TRUE(browser.toPlainText().startsWith(QStringLiteral("Defunción")));
  open("Veldoria/Tablas/HTML/otra.html");
  EXPECT_EQ(page(), "otra.html");
  EXPECT_EQ(PageBrowser(nullptr).pageName(), "");
}

TEST_F(PageBrowsers, SayThatAPageIsMissing) {
  open("Veldoria/Tablas/HTML/1999 - <b>.html");
  EXPECT_EQ(browser.toPlainText().toStdString(),
            "No se encuentra la página\nEl archivo «1999 - <b>.html» no está en la carpeta del estudio.");
  EXPECT_EQ(page(), "1999 - <b>.html");
}

TEST_F(PageBrowsers, HaveNothingToPrintOrToSearchWhereAPageIsMissingOrRefused) {
  for (const char* name : {"Veldoria/Tablas/HTML/nada.html", "fuera.html", "Veldoria/Tablas", ""}) {
    open(name);
    EXPECT_FALSE(browser.hasPage()) << name;
    for (const char* entry : {"Imprimir...", "Buscar...", "Seleccionar todo"}) {
      EXPECT_FALSE(isOffered(entry)) << name << ": " << entry;
    }
    for (const Qt::Key key : {Qt::Key_P, Qt::Key_F, Qt::Key_A}) QTest::keyClick(&browser, key, Qt::ControlModifier);
    QTest::keyClick(&browser, Qt::Key_F3);
    hands::settle();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << name;
    EXPECT_FALSE(browser.isFinding()) << name;
    EXPECT_FALSE(browser.textCursor().hasSelection()) << name;
    closePreviews();
  }
  open("Veldoria/Tablas/HTML/tabla.html");
  EXPECT_TRUE(browser.hasPage());
  for (const char* entry : {"Imprimir...", "Buscar...", "Seleccionar todo"}) EXPECT_TRUE(isOffered(entry)) << entry;
}

TEST_F(PageBrowsers, FindNoWordsInTheNoticeOfAMissingPage) {
  browser.openFind();
  QTest::keyClicks(&words(), "archivo");
  open("Veldoria/Tablas/HTML/nada.html");
  EXPECT_EQ(places(), "No se encuentra");
}

TEST_F(PageBrowsers, SayThatAPageIsMissingAtEachZoomAndEachTime) {
  const std::string missing = "No se encuentra la página\nEl archivo «nada.html» no está en la carpeta del estudio.";
  open("Veldoria/Tablas/HTML/nada.html");
  browser.zoomBy(1);
  EXPECT_EQ(browser.toPlainText().toStdString(), missing);
  EXPECT_EQ(page(), "nada.html");
  open("Veldoria/Tablas/HTML/nada.html");
  EXPECT_EQ(browser.toPlainText().toStdString(), missing);
  EXPECT_EQ(page(), "nada.html");
  write("Veldoria/Tablas/HTML/nada.html", "ya está");
  open("Veldoria/Tablas/HTML/nada.html");
  EXPECT_EQ(browser.toPlainText(), QStringLiteral("ya está"));
}

TEST_F(PageBrowsers, DoNotPrintAPageThatHasGoneMeanwhile) {
  QFile::remove(path("Veldoria/Tablas/HTML/tabla.html"));
  browser.previewPrint();
  hands::settle();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(notice(), "La página ya no está en la carpeta del estudio: tabla.html");
  browser.zoomBy(1);
  EXPECT_FALSE(browser.hasPage());
  EXPECT_TRUE(browser.toPlainText().startsWith(QStringLiteral("No se encuentra la página")));
}

TEST_F(PageBrowsers, ReadAPageAnewThatIsAskedForAgain) {
  write("Veldoria/Tablas/HTML/tabla.html", "<title>Otra tabla</title>");
  open("Veldoria/Tablas/HTML/tabla.html");
  EXPECT_EQ(page(), "Otra tabla");
}

TEST_F(PageBrowsers, LinksLeadToPagesOfTheStudyAlone) {
  follow("otra.html");
  EXPECT_EQ(page(), "otra.html");
  EXPECT_EQ(notice(), "");
  browser.backward();
  EXPECT_EQ(page(), "Una tabla");
  follow("../../../fuera.html");
  EXPECT_EQ(page(), "Una tabla");
  EXPECT_EQ(notice(), "Este enlace no lleva a una página del estudio: fuera.html");
  follow("http://ejemplo.org/a");
  EXPECT_EQ(notice(), "Este enlace no lleva a una página del estudio: http://ejemplo.org/a");
  for (const char* address : {"mapa.png", "nada.html", "file:///etc/passwd", "mailto:a@b.es"}) {
    follow(address);
    EXPECT_EQ(page(), "Una tabla") << address;
  }
  follow("#fin");
  EXPECT_EQ(page(), "Una tabla");
}

TEST_F(PageBrowsers, ForgetWhereLinksLedWhenAPageIsOpened) {
  follow("otra.html");
  QTest::keyClick(&browser, Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(page(), "Una tabla");
  EXPECT_FALSE(browser.isBackwardAvailable());
}

TEST_F(PageBrowsers, PicturesComeFromTheStudyAlone) {
  const auto picture = [this](const char* address) {
    return browser.document()->resource(QTextDocument::ImageResource, QUrl(QString::fromUtf8(address))).value<QImage>();
  };
  EXPECT_EQ(picture("mapa.png").size(), QSize(8, 8));
  EXPECT_EQ(picture("../../../fuera.png").size(), QSize(1, 1));
  EXPECT_EQ(picture("http://ejemplo.org/a.png").size(), QSize(1, 1));
}

TEST_F(PageBrowsers, AreZoomedByKeysAndWheel) {
  const auto pixels = [this] {
    return browser.document()->find(QStringLiteral("Tasa")).charFormat().font().pixelSize();
  };
  EXPECT_EQ(pixels(), 14);
  QTest::keyClick(&browser, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(browser.zoom(), 1.1);
  EXPECT_EQ(notice(), "Tamaño: 110 %");
  turnWheel(2);
  EXPECT_DOUBLE_EQ(browser.zoom(), 1.5);
  EXPECT_EQ(pixels(), 21);
  turnWheel(-1);
  EXPECT_DOUBLE_EQ(browser.zoom(), 1.25);
  QTest::keyClick(&browser, Qt::Key_0, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(browser.zoom(), 1);
  QTest::keyClick(&browser, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(browser.zoom(), 0.9);
  browser.zoomBy(100);
  EXPECT_DOUBLE_EQ(browser.zoom(), 3);
  browser.zoomBy(-100);
  EXPECT_DOUBLE_EQ(browser.zoom(), 0.5);
  EXPECT_EQ(page(), "Una tabla");
}

TEST_F(PageBrowsers, AZoomKeepsThePlace) {
  write("Veldoria/Tablas/HTML/larga.html", QByteArray("<p>línea").repeated(300).constData());
  open("Veldoria/Tablas/HTML/larga.html");
  QScrollBar* bar = browser.verticalScrollBar();
  bar->setValue(bar->maximum() / 2);
  browser.zoomBy(3);
  EXPECT_NEAR(bar->value(), bar->maximum() / 2.0, bar->maximum() / 20.0);
}

TEST_F(PageBrowsers, FindWordsAndGoThroughThem) {
  QTest::keyClick(&browser, Qt::Key_F, Qt::ControlModifier);
  ASSERT_TRUE(browser.isFinding());
  EXPECT_TRUE(words().hasFocus());
  QTest::keyClicks(&words(), "defuncion");
  EXPECT_EQ(places(), "1 de 2");
  EXPECT_EQ(browser.textCursor().selectedText(), "Defunción");
  QTest::keyClick(&browser, Qt::Key_F3);
  EXPECT_EQ(places(), "2 de 2");
  QTest::keyClick(&words(), Qt::Key_Return);
  EXPECT_EQ(places(), "1 de 2");
  QTest::keyClick(&words(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(places(), "2 de 2");
  EXPECT_EQ(browser.extraSelections().size(), 2);
  QTest::keyClicks(&words(), "es");
  EXPECT_EQ(places(), "No se encuentra");
  EXPECT_TRUE(browser.extraSelections().isEmpty());
  QTest::keyClick(&words(), Qt::Key_Escape);
  EXPECT_FALSE(browser.isFinding());
  EXPECT_TRUE(browser.hasFocus());
  QTest::keyClick(&browser, Qt::Key_F3);
  EXPECT_TRUE(browser.isFinding());
  QTest::keyClick(&browser, Qt::Key_Escape);
  EXPECT_FALSE(browser.isFinding());
}

TEST_F(PageBrowsers, TheRowToFindWordsTakesWhatIsSelectedAndLivesThroughOtherPages) {
  browser.setTextCursor(browser.document()->find(QStringLiteral("Tasa")));
  browser.openFind();
  EXPECT_EQ(words().text(), "Tasa");
  EXPECT_EQ(places(), "1 de 1");
  EXPECT_LE(browser.viewport()->geometry().bottom(), browser.findChild<FindBar*>()->geometry().top());
  open("Veldoria/Tablas/HTML/otra.html");
  EXPECT_EQ(places(), "No se encuentra");
  browser.zoomBy(1);
  words().clear();
  EXPECT_EQ(places(), "");
}

TEST_F(PageBrowsers, CopiesKeepTheColumns) {
  browser.selectAll();
  browser.copy();
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_TRUE(
      copied->text().startsWith(QStringLiteral("Defunción y defuncion\nAño\tTasa\n1999\t9,1\notra fin fuera\nFin")))
      << copied->text().toStdString();
  EXPECT_TRUE(copied->html().contains(QLatin1String("<table")));
}

TEST_F(PageBrowsers, HaveASpanishMenu) {
  QStringList texts;
  for (const QAction* action : menu()) {
    if (!action->isSeparator()) texts += QString(action->text()).remove(u'&').section(u'\t', 0, 0);
  }
  EXPECT_EQ(texts, QStringList({"Copiar", "Seleccionar todo", "Buscar...", "Acercar", "Alejar", "Tamaño normal",
                                "Imprimir..."}));
  EXPECT_FALSE(isOffered("Copiar"));
  EXPECT_FALSE(isOffered("Tamaño normal"));
  browser.selectAll();
  browser.zoomBy(1);
  EXPECT_TRUE(isOffered("Copiar"));
  EXPECT_TRUE(isOffered("Tamaño normal"));
}

TEST_F(PageBrowsers, OpenAPreviewOfThePrintedPage) {
  QTest::keyClick(&browser, Qt::Key_P, Qt::ControlModifier);
  hands::settle();
  auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
  ASSERT_NE(preview, nullptr);
  EXPECT_EQ(preview->windowTitle(), "Vista preliminar: Una tabla");
  EXPECT_TRUE(preview->screen()->availableGeometry().contains(preview->frameGeometry()));
  preview->close();
  hands::settle();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PageBrowsers, ShowThatALargePageTakesTimeAndLayItOutOnce) {
  const auto rows = [](int count) { return "<table>" + QByteArray("<tr><td>1999<td>9,1").repeated(count); };
  std::vector<double> widths;  // of the layouts
  bool waits = false;
  QObject::connect(browser.document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, &browser,
                   [&] {
                     widths.push_back(browser.document()->pageSize().width());
                     waits = waits || QApplication::overrideCursor() != nullptr;
                   });
  write("Veldoria/Tablas/HTML/otra.html", rows(10).constData());
  open("Veldoria/Tablas/HTML/otra.html");
  EXPECT_FALSE(waits);
  EXPECT_FALSE(browser.verticalScrollBar()->isVisible());
  write("Veldoria/Tablas/HTML/grande.html", rows(8000).constData());
  widths.clear();
  open("Veldoria/Tablas/HTML/grande.html");
  EXPECT_TRUE(waits);
  EXPECT_EQ(widths, std::vector<double>{static_cast<double>(browser.viewport()->width())});
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(browser.verticalScrollBar()->isVisible());
  open("Veldoria/Tablas/HTML/tabla.html");
  EXPECT_FALSE(browser.verticalScrollBar()->isVisible());
}

TEST_F(PageBrowsers, TakeThePagesOwnGroundAndLetItGo) {
  write("Veldoria/Tablas/HTML/azul.html", "<body bgcolor='#3366cc' style='max-width:200px;margin:0 auto'>a");
  open("Veldoria/Tablas/HTML/azul.html");
  hands::settle();
  EXPECT_EQ(browser.grab().toImage().pixelColor(250, 300), QColor(0x33, 0x66, 0xCC));
  const double beside = browser.document()->rootFrame()->frameFormat().leftMargin();
  EXPECT_NEAR(beside, (browser.viewport()->width() - 200) / 2.0, 1);
  open("Veldoria/Tablas/HTML/otra.html");
  hands::settle();
  EXPECT_EQ(browser.grab().toImage().pixelColor(250, 300), QColor(Qt::white));
}

TEST_F(PageBrowsers, ReadWhatAPageNeedsFromTheWholeStudy) {
  write("Veldoria/Tablas/HTML/sub/x.html", "<link rel=stylesheet href='../../../Archivos/hoja.css'><p>x");
  write("Veldoria/Archivos/hoja.css", "p { color: #ff0000 }");
  open("Veldoria/Tablas/HTML/sub/x.html");
  EXPECT_EQ(browser.document()->find(QStringLiteral("x")).charFormat().foreground().color(), QColor(255, 0, 0));
}

}  // namespace
}  // namespace desktop::pages
