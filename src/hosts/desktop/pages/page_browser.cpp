#include "hosts/desktop/pages/page_browser.h"

#include <QContextMenuEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QScrollBar>
#include <QShortcut>
#include <QTextDocumentFragment>
#include <QTextFrame>
#include <QTextFrameFormat>
#include <QTextTable>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <functional>

#include "hosts/desktop/pages/copied_text.h"
#include "hosts/desktop/pages/find_bar.h"
#include "hosts/desktop/pages/page_printing.h"
#include "hosts/desktop/pages/reading/page_pictures.h"
#include "hosts/desktop/theme.h"
#include "hosts/desktop/views/context_menu.h"

namespace desktop::pages {
namespace {

constexpr std::array kZooms{0.5, 0.67, 0.8, 0.9, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};
constexpr int kWheelStep = 120;    // of a mouse wheel, in its own units
constexpr int kNoticeTime = 4000;  // milliseconds
constexpr int kNoticeInset = 8;
constexpr std::size_t kMostMatches = 999;
constexpr qsizetype kLongestWords = 100;   // taken from the selection to look for
constexpr qint64 kLargePage = 128 * 1024;  // bytes, which take a good part of a second
constexpr qint64 kMostSheetBytes = 512 * 1024;

constexpr int kMissingMargin = 24;  // pixels
constexpr auto kMissingPage =
    "<html><body><p style=\"margin:0px;font-size:%2px;font-weight:600;color:#1f3a5f\">No se encuentra la página</p>"
    "<p style=\"margin:10px 0px 0px 0px;font-size:%3px\">El archivo «%1» no está en la carpeta del estudio.</p>"
    "</body></html>";

bool isPage(const QString& file) {
  const QString ending = QFileInfo(file).suffix().toLower();
  return ending == QLatin1String("html") || ending == QLatin1String("htm");
}

// Of the lines and the rows of tables that stand on the page, in pixels: it is not lower than that.
int leastHeight(const QTextDocument& document) {
  constexpr int kLeastLine = 8;
  int lines = 0;
  for (auto at = document.rootFrame()->begin(); !at.atEnd(); ++at) {
    const auto* table = qobject_cast<const QTextTable*>(at.currentFrame());
    lines += table == nullptr ? 1 : table->rows();
  }
  return lines * kLeastLine;
}

// The step of the zoom from here: the next larger or smaller one.
double steppedZoom(double zoom, int steps) {
  constexpr double kSame = 0.001;
  for (; steps > 0; --steps) {
    const auto larger = std::ranges::find_if(kZooms, [&](double each) { return each > zoom + kSame; });
    if (larger != kZooms.end()) zoom = *larger;
  }
  for (; steps < 0; ++steps) {
    const auto smaller = std::find_if(kZooms.rbegin(), kZooms.rend(), [&](double each) { return each < zoom - kSame; });
    if (smaller != kZooms.rend()) zoom = *smaller;
  }
  return zoom;
}

}  // namespace

PageBrowser::PageBrowser(QWidget* parent)
    : QTextBrowser(parent), findBar_(new FindBar(*this)), notice_(new QLabel(this)), noticeTimer_(new QTimer(this)) {
  setOpenExternalLinks(false);
  setWordWrapMode(QTextOption::WordWrap);
  setUndoRedoEnabled(false);
  setCornerWidget(new QWidget(this));
  findBar_->hide();
  findBar_->changed = [this](const QString& words) { search(words); };
  findBar_->asked = [this](bool forward) { findNext(forward); };
  findBar_->closed = [this] { closeFind(); };
  notice_->setObjectName(QStringLiteral("AvisoPagina"));
  notice_->setTextFormat(Qt::PlainText);
  notice_->setMargin(kNoticeInset);
  notice_->setAutoFillBackground(true);
  notice_->setFrameShape(QFrame::Box);
  notice_->hide();
  noticeTimer_->setSingleShot(true);
  noticeTimer_->setInterval(kNoticeTime);
  connect(noticeTimer_, &QTimer::timeout, notice_, &QWidget::hide);
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& address) { settlePage(address); });
  addShortcuts();
}

PageBrowser::~PageBrowser() = default;

// While the page is on the screen its keys work from everywhere in its window.
void PageBrowser::addShortcuts() {
  const auto add = [this](const QList<QKeySequence>& keys, const std::function<void()>& does) {
    for (const QKeySequence& each : keys) {
      auto* shortcut = new QShortcut(each, this);
      connect(shortcut, &QShortcut::activated, this, does);
    }
  };
  add({Qt::CTRL | Qt::Key_F}, [this] { openFind(); });
  add({Qt::Key_F3}, [this] { findNext(true); });
  add({Qt::SHIFT | Qt::Key_F3}, [this] { findNext(false); });
  add({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, [this] { zoomBy(1); });
  add({Qt::CTRL | Qt::Key_Minus}, [this] { zoomBy(-1); });
  add({Qt::CTRL | Qt::Key_0}, [this] { zoomToNormal(); });
  add({Qt::CTRL | Qt::Key_P}, [this] { previewPrint(); });
}

void PageBrowser::openPage(const QString& path, const StudyFolder& folder) {
  opened_ = path;
  folder_ = folder;
  const QUrl address = QUrl::fromLocalFile(path);
  if (address == source()) {
    reload();
  } else {
    QTextBrowser::doSetSource(address, QTextDocument::HtmlResource);
  }
  clearHistory();
}

QString PageBrowser::pageName() const { return page_.title.isEmpty() ? source().fileName() : page_.title; }

// A link. What lies outside the study, or is no page, is told of and not opened. While a page is read anew there is no
// source that a link could stand in.
void PageBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType /*type*/) {
  if (source().isEmpty()) return QTextBrowser::doSetSource(name, QTextDocument::HtmlResource);
  const QUrl address = source().resolved(name);
  const bool isHere = address.adjusted(QUrl::RemoveFragment) == source().adjusted(QUrl::RemoveFragment);
  if (!isHere && !isPage(folder_.fileAt(address))) {
    const QString shown = address.isLocalFile() ? address.fileName() : address.toDisplayString();
    return say(QStringLiteral("Este enlace no lleva a una página del estudio: %1").arg(shown));
  }
  QTextBrowser::doSetSource(address, QTextDocument::HtmlResource);
}

QVariant PageBrowser::loadResource(int type, const QUrl& name) {
  const QUrl address = source().resolved(name);
  if (type == QTextDocument::HtmlResource) {
    document()->setLayoutEnabled(false);  // until the page's margins are known
    return readHtml(address);
  }
  if (type == QTextDocument::ImageResource) return pictureIn(folder_.fileAt(address), zoom_);
  return {};
}

QString PageBrowser::readHtml(const QUrl& address) {
  constexpr double kHeading = 17;
  constexpr double kText = 13;
  const QString file = folder_.fileAt(address);
  hasPage_ = !file.isEmpty();
  if (!hasPage_) {
    page_ = {};
    page_.margins.fill(qRound(kMissingMargin * zoom_));
    return QString::fromUtf8(kMissingPage)
        .arg(address.fileName().toHtmlEscaped())
        .arg(qRound(kHeading * zoom_))
        .arg(qRound(kText * zoom_));
  }
  const auto sheet = [&](const QString& written) {
    return firstBytes(folder_.fileAt(address.resolved(QUrl(written))), kMostSheetBytes);
  };
  if (QFileInfo(file).size() > kLargePage) wait_.emplace();
  page_ = readPage(firstBytes(file, kMostPageBytes + 1), zoom_, sheet);
  return page_.html;
}

// After a page has come: its ground, its margins, its place, and what was looked for. The toolkit still tells the
// source before as its own.
void PageBrowser::settlePage(const QUrl& address) {
  const QString ground = page_.background.isValid()
                             ? QStringLiteral("QTextBrowser { background: %1 }").arg(page_.background.name())
                             : QString();
  if (ground != styleSheet()) setStyleSheet(ground);
  settleMargins();
  layOut();
  wait_.reset();
  if (address.hasFragment()) scrollToAnchor(address.fragment());
  if (isFinding()) search(findBar_->words());
}

// A page that does not fit is laid out beside its scroll bar at once: to find that out would be to lay it out twice
// more.
void PageBrowser::layOut() {
  const bool isLong = leastHeight(*document()) > viewport()->height();
  if (isLong) setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  document()->setLayoutEnabled(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

// Lines that may be only so wide stand in the middle.
void PageBrowser::settleMargins() {
  QTextFrame* root = document()->rootFrame();
  QTextFrameFormat format = root->frameFormat();
  const int room = viewport()->width() - page_.margins[kLeft] - page_.margins[kRight];
  const int beside = page_.widest > 0 && room > page_.widest ? (room - page_.widest) / 2 : 0;
  const std::array<qreal, 4> wanted{qreal(page_.margins[kTop]), qreal(page_.margins[kRight] + beside),
                                    qreal(page_.margins[kBottom]), qreal(page_.margins[kLeft] + beside)};
  const std::array<qreal, 4> present{format.topMargin(), format.rightMargin(), format.bottomMargin(),
                                     format.leftMargin()};
  if (wanted == present) return;
  format.setTopMargin(wanted[kTop]);
  format.setRightMargin(wanted[kRight]);
  format.setBottomMargin(wanted[kBottom]);
  format.setLeftMargin(wanted[kLeft]);
  root->setFrameFormat(format);
}

void PageBrowser::openFind() {
  if (!hasPage_) return;
  findBar_->setVisible(true);
  setViewportMargins(0, 0, 0, findBar_->sizeHint().height());
  placeOverlays();
  const QString selected = copiedText(textCursor());
  const bool isWords = selected.size() <= kLongestWords && !selected.contains(u'\n') && !selected.contains(u'\t');
  findBar_->begin(isWords ? selected : QString());
}

void PageBrowser::closeFind() {
  if (!isFinding()) return;
  findBar_->hide();
  setViewportMargins(0, 0, 0, 0);
  matches_.clear();
  setExtraSelections({});
  setFocus(Qt::OtherFocusReason);
}

bool PageBrowser::isFinding() const { return findBar_->isVisibleTo(this); }

// The first place from where the user is on.
void PageBrowser::search(const QString& words) {
  matches_ = hasPage_ ? matchesOf(*document(), words, kMostMatches) : std::vector<Match>();
  const int from = textCursor().selectionStart();
  const auto next = std::ranges::find_if(matches_, [&](const Match& match) { return match.position >= from; });
  if (!matches_.empty())
    return showMatch(next == matches_.end() ? 0 : static_cast<std::size_t>(next - matches_.begin()));
  setExtraSelections({});
  findBar_->show(0, 0, false);
}

void PageBrowser::findNext(bool forward) {
  if (!isFinding()) return openFind();
  if (matches_.empty()) return;
  showMatch((match_ + (forward ? 1 : matches_.size() - 1)) % matches_.size());
}

void PageBrowser::showMatch(std::size_t index) {
  match_ = index;
  select(matches_[index].position, matches_[index].position + matches_[index].length);
  ensureCursorVisible();
  highlightMatches();
  findBar_->show(index + 1, matches_.size(), matches_.size() == kMostMatches);
}

void PageBrowser::highlightMatches() {
  constexpr QColor kFound(0xFF, 0xE8, 0x9A);
  constexpr QColor kFoundHere(0xF2, 0xA9, 0x3B);
  QList<QTextEdit::ExtraSelection> all;
  for (std::size_t i = 0; i < matches_.size(); ++i) {
    QTextEdit::ExtraSelection selection;
    selection.cursor = QTextCursor(document());
    selection.cursor.setPosition(matches_[i].position);
    selection.cursor.setPosition(matches_[i].position + matches_[i].length, QTextCursor::KeepAnchor);
    selection.format.setBackground(i == match_ ? kFoundHere : kFound);
    selection.format.setForeground(theme::kInk);
    all.append(selection);
  }
  setExtraSelections(all);
}

void PageBrowser::zoomBy(int steps) { setZoom(steppedZoom(zoom_, steps)); }

void PageBrowser::zoomToNormal() { setZoom(1); }

// The page is laid out anew, at the same place in it and with the same selection.
void PageBrowser::setZoom(double zoom) {
  say(QStringLiteral("Tamaño: %1 %").arg(qRound(zoom * 100)));
  if (zoom == zoom_) return;
  zoom_ = zoom;
  if (source().isEmpty()) return;
  const auto part = [](const QScrollBar* bar) {
    return bar->maximum() == 0 ? 0 : double(bar->value()) / bar->maximum();
  };
  const double down = part(verticalScrollBar());
  const double across = part(horizontalScrollBar());
  const QTextCursor selected = textCursor();
  const int anchor = selected.anchor();
  const int position = selected.position();
  reload();
  select(anchor, position);
  if (isFinding()) search(findBar_->words());
  verticalScrollBar()->setValue(qRound(down * verticalScrollBar()->maximum()));
  horizontalScrollBar()->setValue(qRound(across * horizontalScrollBar()->maximum()));
}

void PageBrowser::select(int anchor, int position) {
  const int last = document()->characterCount() - 1;
  QTextCursor cursor(document());
  cursor.setPosition(qMin(anchor, last));
  cursor.setPosition(qMin(position, last), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

void PageBrowser::previewPrint() {
  if (!hasPage_) return;
  const QString file = folder_.fileAt(source());
  if (file.isEmpty()) {
    return say(QStringLiteral("La página ya no está en la carpeta del estudio: %1").arg(source().fileName()));
  }
  previewPage(*this, firstBytes(file, kMostPageBytes + 1), pageName());
}

QMimeData* PageBrowser::createMimeDataFromSelection() const {
  auto* copied = new QMimeData;  // the caller's
  copied->setText(copiedText(textCursor()));
  copied->setHtml(textCursor().selection().toHtml());
  return copied;
}

void PageBrowser::contextMenuEvent(QContextMenuEvent* event) {
  popUpMenu(*this, event->globalPos(),
            {{"&Copiar", [this] { copy(); }, textCursor().hasSelection(), QKeySequence::Copy},
             {"Seleccionar &todo", [this] { selectAll(); }, hasPage_, QKeySequence::SelectAll},
             {},
             {"&Buscar...", [this] { openFind(); }, hasPage_, Qt::CTRL | Qt::Key_F},
             {},
             {"&Acercar", [this] { zoomBy(1); }, zoom_ < kZooms.back(), Qt::CTRL | Qt::Key_Plus},
             {"A&lejar", [this] { zoomBy(-1); }, zoom_ > kZooms.front(), Qt::CTRL | Qt::Key_Minus},
             {"Tamaño &normal", [this] { zoomToNormal(); }, zoom_ != 1, Qt::CTRL | Qt::Key_0},
             {},
             {"&Imprimir...", [this] { previewPrint(); }, hasPage_, Qt::CTRL | Qt::Key_P}});
}

void PageBrowser::keyPressEvent(QKeyEvent* event) {
  const bool isAlt = event->modifiers() == Qt::AltModifier;
  if (isAlt && (event->key() == Qt::Key_Home || event->key() == Qt::Key_Up)) return showOpened();
  if (event->key() == Qt::Key_Escape && isFinding()) return closeFind();
  if (!hasPage_ && event->matches(QKeySequence::SelectAll)) return;
  QTextBrowser::keyPressEvent(event);
}

void PageBrowser::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QTextBrowser::wheelEvent(event);
  event->accept();
  wheelTurned_ += event->angleDelta().y();
  const int steps = wheelTurned_ / kWheelStep;
  wheelTurned_ -= steps * kWheelStep;
  if (steps != 0) zoomBy(steps);
}

void PageBrowser::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  settleMargins();
  placeOverlays();
}

void PageBrowser::say(const QString& text) {
  notice_->setText(text);
  placeOverlays();
  notice_->show();
  notice_->raise();
  noticeTimer_->start();
}

void PageBrowser::placeOverlays() {
  const QRect page = viewport()->geometry();
  findBar_->setGeometry(page.left(), page.bottom() + 1, page.width(), findBar_->sizeHint().height());
  notice_->resize(notice_->sizeHint().boundedTo(QSize(page.width() - 2 * kNoticeInset, page.height())));
  notice_->move(page.left() + kNoticeInset, page.bottom() - notice_->height() - kNoticeInset);
}

}  // namespace desktop::pages
