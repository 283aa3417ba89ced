#include "motor/window/printing/print_preview.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPrintDialog>
#include <QPushButton>
#include <iterator>

#include "motor/window/printing/map_printing.h"
#include "motor/window/room_on_screen.h"

namespace motor {

namespace {

constexpr int kTypingMilliseconds = 250;
constexpr double kMargin = 12;  // millimetres
constexpr QSize kFirstSize(1100, 720);
constexpr int kTextWidth = 250;  // at least
constexpr int kPreviewShare = 3;
constexpr int kOptionsShare = 2;
constexpr QPageSize::PageSizeId kPapers[] = {QPageSize::A4, QPageSize::A3, QPageSize::A5, QPageSize::Letter};
constexpr int kPortrait = 0;
constexpr int kLandscape = 1;
constexpr int kAsOnScreen = 1;
constexpr QLatin1String kSourceWord("Fuente: ");

// The page says what the text is; in the dialog its label does.
QString withoutSourceWord(const QString& source) {
  return source.startsWith(kSourceWord) ? source.mid(kSourceWord.size()) : source;
}
QString withSourceWord(const QString& source) { return source.isEmpty() ? source : kSourceWord + source; }

}  // namespace

PrintPreview::PrintPreview(Map map, const PageTexts& texts, QWidget* parent)
    : QDialog(parent),
      map_(std::move(map)),
      printer_(QPrinter::HighResolution),
      preview_(new QPrintPreviewWidget(&printer_)) {
  setWindowTitle(QStringLiteral("Imprimir el mapa"));
  setAttribute(Qt::WA_DeleteOnClose);
  setSizeGripEnabled(true);
  resize(kFirstSize.boundedTo(roomOnScreen(*this)));
  printer_.setDocName(texts.title);
  printer_.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter);
  preview_->setAccessibleName(QStringLiteral("Vista previa"));
  connect(preview_, &QPrintPreviewWidget::paintRequested, this,
          [this](QPrinter* printer) { printPage(*printer, page()); });
  typing_.setSingleShot(true);
  typing_.setInterval(kTypingMilliseconds);
  connect(&typing_, &QTimer::timeout, preview_, &QPrintPreviewWidget::updatePreview);

  auto* buttons = new QDialogButtonBox(this);  // a default button stays one only within its dialog
  QPushButton* print = buttons->addButton(QStringLiteral("&Imprimir..."), QDialogButtonBox::AcceptRole);
  print->setDefault(true);
  buttons->addButton(QStringLiteral("&Cerrar"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { askAndPrint(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* side = new QVBoxLayout;
  side->addLayout(makeOptions(texts));
  side->addStretch();
  side->addWidget(buttons);
  auto* all = new QHBoxLayout(this);
  all->addWidget(preview_, kPreviewShare);
  all->addLayout(side, kOptionsShare);
  followPaper();
  print->setFocus();
}

QLineEdit* PrintPreview::textField(const QString& text) {
  auto* field = new QLineEdit(text);
  field->setMinimumWidth(kTextWidth);
  field->setCursorPosition(0);
  connect(field, &QLineEdit::textChanged, this, [this] { typing_.start(); });
  return field;
}

QCheckBox* PrintPreview::choice(const QString& text) {
  auto* box = new QCheckBox(text);
  box->setChecked(true);
  connect(box, &QCheckBox::toggled, preview_, &QPrintPreviewWidget::updatePreview);
  return box;
}

QComboBox* PrintPreview::list(const QStringList& entries) {
  auto* box = new QComboBox;
  box->addItems(entries);
  return box;
}

QLayout* PrintPreview::makeOptions(const PageTexts& texts) {
  auto* form = new QFormLayout;
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  form->addRow(QStringLiteral("&Título:"), title_ = textField(texts.title));
  form->addRow(QStringLiteral("&Subtítulo:"), subtitle_ = textField(texts.subtitle));
  form->addRow(QStringLiteral("&Fuente:"), source_ = textField(withoutSourceWord(texts.source)));
  form->addRow(QStringLiteral("F&echa:"), date_ = textField(texts.date));
  form->addRow(legend_ = choice(QStringLiteral("&Leyenda")));
  form->addRow(scaleBar_ = choice(QStringLiteral("Esc&ala")));
  form->addRow(northArrow_ = choice(QStringLiteral("Flecha del &norte")));
  legend_->setVisible(hasTheme(map_));
  form->addRow(QStringLiteral("&Papel:"), paper_ = list({QStringLiteral("A4"), QStringLiteral("A3"),
                                                         QStringLiteral("A5"), QStringLiteral("Carta")}));
  form->addRow(QStringLiteral("&Orientación:"),
               orientation_ = list({QStringLiteral("Vertical"), QStringLiteral("Horizontal")}));
  form->addRow(QStringLiteral("&Mapa:"),
               mapSize_ = list({QStringLiteral("Lo más grande posible"), QStringLiteral("Como en la pantalla")}));
  orientation_->setCurrentIndex(map_.pixelWidth > map_.pixelHeight ? kLandscape : kPortrait);
  connect(paper_, &QComboBox::currentIndexChanged, this, [this] { followPaper(); });
  connect(orientation_, &QComboBox::currentIndexChanged, this, [this] { followPaper(); });
  connect(mapSize_, &QComboBox::currentIndexChanged, preview_, &QPrintPreviewWidget::updatePreview);
  return form;
}

void PrintPreview::followPaper() {
  printer_.setPageSize(QPageSize(kPapers[paper_->currentIndex()]));
  printer_.setPageOrientation(orientation_->currentIndex() == kLandscape ? QPageLayout::Landscape
                                                                         : QPageLayout::Portrait);
  preview_->updatePreview();
  preview_->fitInView();
}

MapPage PrintPreview::page() const {
  return MapPage(map_, {title_->text(), subtitle_->text(), withSourceWord(source_->text()), date_->text()},
                 {.legend = legend_->isChecked(),
                  .scaleBar = scaleBar_->isChecked(),
                  .northArrow = northArrow_->isChecked(),
                  .asOnScreen = mapSize_->currentIndex() == kAsOnScreen},
                 painter_);
}

// The page's shape is what the dialog shows, unless the printer's own dialog changes it.
void PrintPreview::askAndPrint() {
  auto* dialog = new QPrintDialog(&printer_, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(QStringLiteral("Imprimir el mapa"));
  dialog->setOption(QAbstractPrintDialog::PrintPageRange, false);
  connect(dialog, qOverload<>(&QDialog::accepted), this, [this] {
    printPage(printer_, page());
    accept();
  });
  dialog->open();
}

}  // namespace motor
