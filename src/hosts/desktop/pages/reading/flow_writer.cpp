#include "hosts/desktop/pages/reading/flow_writer.h"

#include <utility>

#include "hosts/desktop/pages/reading/markup.h"

namespace desktop::pages {
namespace {

constexpr qsizetype kLongestParagraph = 15'000;  // characters
constexpr qsizetype kLongestWord = 250;
constexpr int kMostBreaks = 50;
constexpr QChar kMayBreak(0x200B);
constexpr double kNumberCharacter = 0.62;  // of the font's size

bool isBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f'; }

bool keepsBlanks(WhiteSpace whiteSpace) { return whiteSpace == WhiteSpace::pre || whiteSpace == WhiteSpace::preWrap; }

QString inCase(QStringView text, LetterCase letters, bool beginsWord) {
  switch (letters) {
    case LetterCase::upper:
      return text.toString().toUpper();
    case LetterCase::lower:
      return text.toString().toLower();
    case LetterCase::capitalized:
      if (!beginsWord || text.isEmpty()) break;
      return text.first(1).toString().toUpper() + text.sliced(1).toString();
    case LetterCase::asWritten:
      break;
  }
  return text.toString();
}

QLatin1String nameOf(ListMark mark) {
  if (mark == ListMark::circle) return QLatin1String("circle");
  return mark == ListMark::square ? QLatin1String("square") : QLatin1String("disc");
}

bool isDecorated(const TextStyle& style) {
  return style.isUnderlined || style.isStruckOut || style.background.isValid();
}

}  // namespace

void FlowWriter::block(const PageStyle& style, double left, double right) {
  endLine();
  block_ = style;
  left_ = left;
  right_ = right;
}

void FlowWriter::beginCell(const PageStyle& style) {
  block(style, 0, 0);
  gap_ = 0;
  bullet_ = ListMark::none;
  number_.clear();
  cell_ = style;
}

int FlowWriter::takeGap() {
  endLine();
  cell_.reset();
  return zoomed(std::exchange(gap_, 0), zoom_);
}

void FlowWriter::text(QStringView text, const TextStyle& style, WhiteSpace whiteSpace, const QString& link) {
  const Run run{style, link};
  keepsBlanks(whiteSpace) ? kept(text, run) : joined(text, run, whiteSpace);
}

void FlowWriter::joined(QStringView text, const Run& run, WhiteSpace whiteSpace) {
  for (qsizetype at = 0; at < text.size();) {
    qsizetype end = at;
    while (end < text.size() && !isBlank(text[end])) ++end;
    if (end > at) {
      letters(text.sliced(at, end - at), run);
      at = end;
      continue;
    }
    const bool staysTogether = whiteSpace == WhiteSpace::nowrap && block_.whiteSpace != WhiteSpace::nowrap;
    if (isOpen_ && !atLineStart_ && breaksDue_ == 0) {
      blankDue_ = staysTogether ? QString(QChar(QChar::Nbsp)) : QStringLiteral(" ");
    }
    ++at;
  }
}

void FlowWriter::kept(QStringView text, const Run& run) {
  constexpr qsizetype kTab = 8;
  const bool isBlockKept = keepsBlanks(block_.whiteSpace);
  if (!isOpen_ && text.startsWith(u'\n')) text = text.sliced(1);
  for (qsizetype at = 0; at < text.size(); ++at) {
    const QChar c = text[at];
    if (c == u'\n') {
      lineBreak();
    } else if (c == u'\t' || c == u' ') {
      const QString blanks(c == u'\t' ? kTab : 1, isBlockKept ? QChar(u' ') : QChar(QChar::Nbsp));
      letters(blanks, run);
    } else if (!isBlank(c)) {
      const qsizetype first = at;
      while (at + 1 < text.size() && !isBlank(text[at + 1])) ++at;
      letters(text.sliced(first, at + 1 - first), run);
    }
  }
}

// Characters as they are; a word that is too long may break within.
void FlowWriter::letters(QStringView text, const Run& run) {
  if (length_ > kLongestParagraph) closeParagraph();
  open(run);
  writeDue(&run);
  openRun(run);
  while (!text.isEmpty()) {
    if (length_ > kLongestParagraph) {
      closeParagraph();
      open(run);
      openRun(run);
    }
    qsizetype count = std::min(text.size(), kLongestWord);
    if (count < text.size() && text[count].isLowSurrogate()) --count;
    html_ += escaped(inCase(text.first(count), run.style.letters, word_ == 0));
    text = text.sliced(count);
    word_ += count;
    length_ += count;
    if (word_ >= kLongestWord) {
      html_ += kMayBreak;
      word_ = 0;
    }
  }
  atLineStart_ = false;
}

void FlowWriter::lineBreak() {
  breaksDue_ = std::min(breaksDue_ + 1, kMostBreaks);
  blankDue_.clear();
  atLineStart_ = true;
}

void FlowWriter::inlineMarkup(const QString& markup, const TextStyle& style) {
  if (length_ > kLongestParagraph) closeParagraph();
  open({style, {}});
  writeDue(nullptr);
  closeRun();
  html_ += markup;
  atLineStart_ = false;
  word_ = 0;
  length_ += kLongestWord;  // that much work for the toolkit
}

void FlowWriter::anchor(const QString& name) {
  constexpr qsizetype kLongestName = 200;
  if (name.isEmpty() || name.size() > kLongestName || anchors_.size() > 10 * kLongestName) return;
  anchors_ += QLatin1String("<a name=\"") + escaped(name) + QLatin1String("\"></a>");
}

// Blank lines that stand alone are a paragraph too.
void FlowWriter::endLine() {
  if (!isOpen_ && breaksDue_ > 0) {
    open({block_.text, {}});
    html_ += QLatin1String("&nbsp;");
  }
  if (isOpen_ && breaksDue_ > 1) {
    closeRun();
    html_ += QStringLiteral("<br />").repeated(breaksDue_ - 1);
  }
  closeParagraph();
  bullet_ = ListMark::none;
  number_.clear();
}

void FlowWriter::closeParagraph() {
  closeRun();
  if (isOpen_) html_ += closing_;
  isOpen_ = false;
  breaksDue_ = 0;
  blankDue_.clear();
  atLineStart_ = true;
  length_ = 0;
  word_ = 0;
}

// What stands between the letters before and the next ones.
void FlowWriter::writeDue(const Run* next) {
  const bool goesOn = next != nullptr && run_ == *next;
  if (!anchors_.isEmpty() || breaksDue_ > 0) closeRun();
  html_ += anchors_;
  anchors_.clear();
  if (breaksDue_ > 0) html_ += QStringLiteral("<br />").repeated(breaksDue_);
  breaksDue_ = 0;
  if (blankDue_.isEmpty()) return;
  if (run_ && !goesOn && (isDecorated(run_->style) || !run_->link.isEmpty())) closeRun();
  html_ += blankDue_;
  blankDue_.clear();
  word_ = 0;
  ++length_;
}

void FlowWriter::openRun(const Run& run) {
  if (run_ == run) return;
  closeRun();
  if (run.link.isEmpty() && run.style == base_) return;
  const QString css = textCss(run.style, base_, zoom_);
  if (run.link.isEmpty()) {
    html_ += QLatin1String("<span style=\"") + css + QLatin1String("\">");
  } else {
    html_ +=
        QLatin1String("<a href=\"") + escaped(run.link) + QLatin1String("\" style=\"") + css + QLatin1String("\">");
  }
  run_ = run;
}

void FlowWriter::closeRun() {
  if (run_) html_ += run_->link.isEmpty() ? QLatin1String("</span>") : QLatin1String("</a>");
  run_.reset();
}

// The first text says how the paragraph looks, unless it is a link, whose look is its own.
void FlowWriter::open(const Run& run) {
  if (isOpen_) return;
  base_ = run.link.isEmpty() ? run.style : block_.text;
  base_.background = QColor();
  base_.script = VerticalAlign::baseline;
  base_.isUnderlined = false;
  base_.isStruckOut = false;
  html_ += paragraphStart();
  gap_ = 0;
  isOpen_ = true;
  atLineStart_ = true;
  if (number_.isEmpty()) return;
  html_ += escaped(number_) + QLatin1String("&nbsp;");
  number_.clear();
}

QString FlowWriter::paragraphStart() {
  const auto cell = std::exchange(cell_, std::nullopt);
  const bool isPlain = gap_ <= 0 && left_ <= 0 && right_ <= 0 && block_.textIndent == 0 && bullet_ == ListMark::none &&
                       number_.isEmpty();
  const bool isAlike = cell && cell->align == block_.align && cell->whiteSpace == block_.whiteSpace &&
                       cell->lineHeight == block_.lineHeight;
  if (isAlike && isPlain) {
    base_ = cell->text;
    closing_.clear();
    return {};
  }
  const QString margin = QStringLiteral("margin:%1px %2px 0px %3px;")
                             .arg(zoomed(gap_, zoom_))
                             .arg(zoomed(right_, zoom_))
                             .arg(zoomed(left_, zoom_));
  const QString css = blockCss(block_, Around::styles) + textCss(base_, Around::styles, zoom_);
  const ListMark bullet = std::exchange(bullet_, ListMark::none);
  if (bullet != ListMark::none) {
    closing_ = QStringLiteral("</li></ul>");
    return QLatin1String("<ul style=\"") + margin + QLatin1String("-qt-list-indent:0;list-style-type:") +
           nameOf(bullet) + QLatin1String("\"><li") + blockAttribute(block_) + QLatin1String(" style=\"") + css +
           QLatin1String("\">");
  }
  closing_ = QStringLiteral("</p>");
  const double numberWidth = static_cast<double>(number_.size() + 1) * kNumberCharacter * base_.pixels;
  const double indent = number_.isEmpty() ? block_.textIndent : -numberWidth;
  const QString indented = QStringLiteral("text-indent:%1px;").arg(zoomed(indent, zoom_));
  return QLatin1String("<p") + blockAttribute(block_) + classes_.paragraphAttribute(margin + indented + css) + u'>';
}

}  // namespace desktop::pages
