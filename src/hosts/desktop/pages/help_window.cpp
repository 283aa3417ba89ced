#include "hosts/desktop/pages/help_window.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

#include "hosts/desktop/artwork.h"
#include "hosts/desktop/pages/page_browser.h"
#include "hosts/desktop/theme.h"

namespace desktop::pages {
namespace {

constexpr QSize kSize(760, 640);
constexpr QSize kSmallest(360, 300);
constexpr int kInset = 8;

QSize fitting(const QScreen& screen) { return kSize.boundedTo(screen.availableGeometry().size() * 9 / 10); }

}  // namespace

HelpWindow::HelpWindow(const QString& path, const StudyFolder& folder, const QWidget* beside)
    : path_(path), folder_(folder), page_(new PageBrowser(this)) {
  setObjectName(QStringLiteral("VentanaAyuda"));
  setWindowTitle(QStringLiteral("Ayuda de Mortalidad en Veldoria"));
  setWindowIcon(artwork::icon("escudo"));
  setMinimumSize(kSmallest);
  setFont(theme::font({.name = "Verdana", .points = 9}));
  page_->setObjectName(QStringLiteral("PaginaAyuda"));
  page_->setAccessibleName(QStringLiteral("Página de ayuda"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kInset, kInset, kInset, kInset);
  column->setSpacing(kInset);
  addButtons();
  column->addWidget(page_, 1);
  const QScreen* where = beside == nullptr ? screen() : beside->screen();
  resize(fitting(*where));
  QRect place(QPoint(), size());
  place.moveCenter(beside == nullptr ? where->availableGeometry().center() : beside->frameGeometry().center());
  move(place.topLeft());
  page_->setFocus();
}

void HelpWindow::addButtons() {
  auto* row = new QHBoxLayout;
  const auto add = [&](Qt::ArrowType arrow, const char* text, const char* keys, auto does) {
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setText(QString::fromUtf8(text));
    button->setToolButtonStyle(arrow == Qt::NoArrow ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextBesideIcon);
    button->setToolTip(QString::fromUtf8(text) + QLatin1String(" (") + QString::fromUtf8(keys) + u')');
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, page_, does);
    row->addWidget(button);
    return button;
  };
  auto* back = add(Qt::LeftArrow, "Atrás", "Alt+Izquierda", [this] { page_->backward(); });
  auto* forward = add(Qt::RightArrow, "Adelante", "Alt+Derecha", [this] { page_->forward(); });
  add(Qt::NoArrow, "Inicio", "Alt+Inicio", [this] { page_->showOpened(); });
  row->addStretch(1);
  auto* find = add(Qt::NoArrow, "Buscar...", "Ctrl+F", [this] { page_->openFind(); });
  auto* print = add(Qt::NoArrow, "Imprimir...", "Ctrl+P", [this] { page_->previewPrint(); });
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
  connect(page_, &QTextBrowser::sourceChanged, this, [this, find, print] {
    for (QToolButton* each : {find, print}) each->setEnabled(page_->hasPage());
  });
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void HelpWindow::showContents() {
  page_->openPage(path_, folder_);
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace desktop::pages
