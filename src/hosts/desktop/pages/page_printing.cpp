#include "hosts/desktop/pages/page_printing.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <memory>

#include "hosts/desktop/pages/reading/page_text.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/wait_cursor.h"
#include "motor/window/room_on_screen.h"

namespace desktop::pages {
namespace {

constexpr double kPixelsPerInch = 96;
constexpr double kPortraitWidth = 180 / 25.4 * kPixelsPerInch;  // of A4 paper within its margins
constexpr double kMillimetresMargin = 12;
constexpr double kFootHeight = 26;  // pixels
constexpr double kFootFont = 10;
constexpr double kSmallest = 0.4;  // of its size a page that is too wide is made at the most
constexpr QSize kPreviewSize(900, 700);

// Lays the page out on lines so wide; a table may still be wider.
void layOut(QTextDocument& document, const QByteArray& page, double width) {
  QTextOption option = document.defaultTextOption();
  option.setWrapMode(QTextOption::WordWrap);
  option.setUseDesignMetrics(true);
  document.setDefaultTextOption(option);
  document.setDefaultFont(theme::paperFont({.name = "Verdana", .points = 9}));
  document.setHtml(readPage(page).html);
  QTextFrameFormat format = document.rootFrame()->frameFormat();
  format.setMargin(0);
  document.rootFrame()->setFrameFormat(format);
  document.setTextWidth(width);
}

int sheetOf(const QTextDocument& document, const QTextBlock& block, bool atEnd) {
  const QRectF place = document.documentLayout()->blockBoundingRect(block);
  return static_cast<int>((atEnd ? place.bottom() - 1 : place.top()) / document.pageSize().height());
}

// What stands right above a table, such as its name, goes with it to the next sheet.
void keepNamesWithTables(QTextDocument& document) {
  QTextBlock above;
  for (auto at = document.rootFrame()->begin(); !at.atEnd(); ++at) {
    const auto* table = qobject_cast<QTextTable*>(at.currentFrame());
    if (table == nullptr) {
      above = at.currentBlock();
      continue;
    }
    const QTextBlock first = table->cellAt(0, 0).firstCursorPosition().block();
    const bool isApart =
        above.isValid() && above.length() > 1 && sheetOf(document, above, true) < sheetOf(document, first, false);
    if (!isApart) continue;
    QTextBlockFormat format = above.blockFormat();
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(above).setBlockFormat(format);
  }
}

void paintFoot(QPainter& painter, const QRectF& place, const QString& name, int number, int numbers) {
  QFont font = theme::paperFont({.name = "Verdana", .points = 8});
  font.setPixelSize(static_cast<int>(kFootFont));
  painter.setFont(font);
  painter.setPen(theme::kMuted);
  const QString numbered = QStringLiteral("%1 de %2").arg(number).arg(numbers);
  const double numberWidth = painter.fontMetrics().horizontalAdvance(numbered) + kFootFont;
  const QRectF left = place.adjusted(0, 0, -numberWidth, 0);
  painter.drawText(left, Qt::AlignLeft | Qt::AlignBottom,
                   painter.fontMetrics().elidedText(name, Qt::ElideRight, static_cast<int>(left.width())));
  painter.drawText(place, Qt::AlignRight | Qt::AlignBottom, numbered);
}

void paintSheet(QPainter& painter, const QTextDocument& document, int sheet, QSizeF size) {
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  context.clip = QRectF(QPointF(0, sheet * size.height()), size);
  painter.save();
  painter.translate(0, -context.clip.top());
  painter.setClipRect(context.clip);
  document.documentLayout()->draw(&painter, context);
  painter.restore();
}

}  // namespace

bool wantsLandscape(const QByteArray& page) {
  QTextDocument document;
  layOut(document, page, kPortraitWidth);
  return document.size().width() > kPortraitWidth + 1;
}

void printPage(QPrinter& printer, const QByteArray& page, const QString& name) {
  const double scale = printer.resolution() / kPixelsPerInch;
  const QSizeF paper = QSizeF(printer.pageRect(QPrinter::DevicePixel).size()) / scale;
  QTextDocument document;
  layOut(document, page, paper.width());
  const double fit = qBound(kSmallest, paper.width() / qMax(document.size().width(), 1.0), 1.0);
  const QSizeF sheet(paper.width() / fit, (paper.height() - kFootHeight) / fit);
  document.setPageSize(sheet);
  keepNamesWithTables(document);
  QPainter painter(&printer);
  painter.scale(scale, scale);
  const int sheets = document.pageCount();
  for (int i = 0; i < sheets; ++i) {
    if (i > 0) printer.newPage();
    painter.save();
    painter.scale(fit, fit);
    paintSheet(painter, document, i, sheet);
    painter.restore();
    paintFoot(painter, QRectF(QPointF(0, 0), paper), name, i + 1, sheets);
  }
}

void previewPage(QWidget& parent, const QByteArray& page, const QString& name) {
  const WaitCursor wait;
  auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  printer->setDocName(name);
  printer->setPageSize(QPageSize(QPageSize::A4));
  printer->setPageOrientation(wantsLandscape(page) ? QPageLayout::Landscape : QPageLayout::Portrait);
  const QMarginsF margins(kMillimetresMargin, kMillimetresMargin, kMillimetresMargin, kMillimetresMargin);
  printer->setPageMargins(margins, QPageLayout::Millimeter);
  auto* preview = new QPrintPreviewDialog(printer.get(), &parent);
  preview->setAttribute(Qt::WA_DeleteOnClose);
  preview->setWindowTitle(QStringLiteral("Vista preliminar: %1").arg(name));
  preview->resize(kPreviewSize.boundedTo(motor::roomOnScreen(*preview)));
  QObject::connect(preview, &QPrintPreviewDialog::paintRequested, preview, [printer, page, name](QPrinter* paper) {
    const WaitCursor waits;
    printPage(*paper, page, name);
  });
  preview->open();
}

}  // namespace desktop::pages
