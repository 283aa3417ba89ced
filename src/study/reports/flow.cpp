#include "study/reports/flow.h"

#include <algorithm>

#include "study/reports/sheet_layout.h"

namespace study::reports {

namespace {

constexpr TextStyle kSectionTitle{17, true, kTitle};
constexpr TextStyle kSubtitle{11, true, kTitle};
constexpr TextStyle kBody{9};
constexpr TextStyle kCaption{8.5, true, kText};
constexpr TextStyle kNote{7, false, kFaintText};
constexpr TextStyle kHead{7.5, false, kFaintText};
constexpr TextStyle kContents{9.5};
constexpr double kContentsLine = 19;
constexpr double kHeadBaseline = kTop - 28;
constexpr double kFootBaseline = kBottom + 24;
constexpr double kParagraphGap = 4;
constexpr std::size_t kTogether = 4;  // rows of a table that stay with its header, and with its notes

std::vector<std::string> paragraphsOf(std::string_view text) {
  std::vector<std::string> paragraphs{""};
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const std::string_view line = text.substr(at, end - at);
    if (line.find_first_not_of(" \t\r") == std::string_view::npos) {
      if (!paragraphs.back().empty()) paragraphs.emplace_back();
    } else {
      paragraphs.back().append(paragraphs.back().empty() ? "" : " ").append(line);
    }
    at = end + 1;
  }
  if (paragraphs.back().empty()) paragraphs.pop_back();
  return paragraphs;
}

}  // namespace

Page& Flow::plainPage() {
  newPage();
  isPlain_.back() = true;
  y_ = kBottom;
  return pages_.back();
}

void Flow::newPage() {
  pages_.emplace_back();
  isPlain_.push_back(false);
  y_ = kTop;
}

void Flow::need(double height) {
  if (room() < height) newPage();
}

void Flow::section(std::string_view title) {
  newPage();
  contents_.push_back({std::string(title), pages_.size()});
  lines(title, kSectionTitle);
  page().line({kLeft, y_ + 3}, {kRight, y_ + 3}, {kTitle, 1.2});
  space(16);
}

void Flow::subsection(std::string_view title, double height) {
  space(5);
  need(height + lineHeight(kSubtitle) + 4);
  lines(title, kSubtitle);
  space(2);
}

void Flow::lines(std::string_view text, const TextStyle& style) {
  for (const std::string& line : wrapped(text, kContentWidth, style)) {
    need(lineHeight(style));
    page().text({kLeft, y_ + ascent(style)}, line, style);
    y_ += lineHeight(style);
  }
}

void Flow::paragraphs(std::string_view text) {
  for (const std::string& paragraph : paragraphsOf(text)) {
    need(std::min<double>(2, static_cast<double>(wrapped(paragraph, kContentWidth, kBody).size())) * lineHeight(kBody));
    lines(paragraph, kBody);
    space(kParagraphGap);
  }
}

void Flow::notes(const std::vector<std::string>& notes) {
  for (const std::string& note : notes) lines(note, kNote);
}

std::string Flow::numbered(std::string_view kind, std::string_view caption) {
  const auto same = [&](const auto& entry) { return entry.first == kind; };
  auto entry = std::find_if(numbers_.begin(), numbers_.end(), same);
  if (entry == numbers_.end()) entry = numbers_.insert(numbers_.end(), {std::string(kind), 0});
  return entry->first + " " + std::to_string(++entry->second) + ". " + std::string(caption);
}

void Flow::caption(const std::string& text) {
  lines(text, kCaption);
  space(3);
}

QRectF Flow::figure(std::string_view kind, std::string_view text, double height) {
  constexpr double kSourceRoom = 14;
  const std::string title = numbered(kind, text);
  const auto captionLines = static_cast<double>(wrapped(title, kContentWidth, kCaption).size());
  need(captionLines * lineHeight(kCaption) + 3 + height + kSourceRoom);
  caption(title);
  const QRectF box(kLeft, y_, kContentWidth, height);
  y_ += height + 3;
  return box;
}

void Flow::source(const std::vector<std::string>& more) {
  notes(more);
  notes({"Fuente: " + source_});
  space(12);
}

void Flow::table(const pages::Sheet& sheet, const std::vector<std::string>& notes) {
  const SheetLayout layout(sheet, kContentWidth);
  const std::string title = numbered("Tabla", sheet.caption);
  const auto begin = [&](const std::string& text) {
    caption(text);
    layout.paintHeader(page(), kLeft, y_);
    y_ += layout.headerHeight();
  };
  const auto heightFrom = [&](std::size_t first) {
    double height = 0;
    for (std::size_t row = first; row < std::min(first + kTogether, sheet.rows.size()); ++row) {
      height += layout.rowHeight(row);
    }
    return height;
  };
  need(2 * lineHeight(kCaption) + layout.headerHeight() + heightFrom(0));
  begin(title);
  for (std::size_t row = 0; row < sheet.rows.size(); ++row) {
    const bool isHeading = sheet.rows[row].kind != pages::RowKind::figures && row + 1 < sheet.rows.size();
    const bool isEnding = row + kTogether == sheet.rows.size() && row > 0;
    const double wanted = isEnding ? heightFrom(row) + notesHeight(notes)
                                   : layout.rowHeight(row) + (isHeading ? layout.rowHeight(row + 1) : 0);
    if (room() < wanted) {
      newPage();
      begin(title + " (continuación)");
    }
    layout.paintRow(page(), kLeft, y_, row);
    y_ += layout.rowHeight(row);
  }
  space(4);
  source(notes);
}

// The source's line and what is above them included.
double Flow::notesHeight(const std::vector<std::string>& notes) const {
  std::size_t lines = wrapped("Fuente: " + source_, kContentWidth, kNote).size();
  for (const std::string& note : notes) lines += wrapped(note, kContentWidth, kNote).size();
  return 4 + static_cast<double>(lines) * lineHeight(kNote);
}

double Flow::contentsHeight(std::size_t sections) { return static_cast<double>(sections) * kContentsLine; }

void Flow::paintContents(std::size_t number, double top) {
  Page& page = pages_[number - 1];
  double baseline = top + ascent(kContents);
  for (const ContentsEntry& entry : contents_) {
    page.text({kLeft, baseline}, entry.title, kContents);
    page.text({kRight, baseline}, std::to_string(entry.page), kContents, Align::right);
    page.line({kLeft, baseline + 6}, {kRight, baseline + 6}, {kGrid, 0.5});
    baseline += kContentsLine;
  }
}

std::string Flow::sectionOf(std::size_t page) const {
  std::string title;
  for (const ContentsEntry& entry : contents_) {
    if (entry.page <= page) title = entry.title;
  }
  return title;
}

std::vector<Page> Flow::finished(std::string_view title) && {
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    if (isPlain_[i]) continue;
    Page& page = pages_[i];
    page.text({kLeft, kHeadBaseline}, shortened(title, kContentWidth * 0.48, kHead), kHead);
    page.text({kRight, kHeadBaseline}, shortened(sectionOf(i + 1), kContentWidth * 0.48, kHead), kHead, Align::right);
    page.line({kLeft, kHeadBaseline + 5}, {kRight, kHeadBaseline + 5}, {kRule, 0.5});
    page.text({kPageWidth / 2, kFootBaseline}, std::to_string(i + 1) + " / " + std::to_string(pages_.size()), kHead,
              Align::centre);
  }
  return std::move(pages_);
}

}  // namespace study::reports
