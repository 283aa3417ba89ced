#pragma once

#include <QString>
#include <algorithm>
#include <optional>

#include "hosts/desktop/pages/reading/page_style.h"
#include "hosts/desktop/pages/reading/style_classes.h"

namespace desktop::pages {

// Writes lines of text below each other as paragraphs of the toolkit's markup. Paragraphs begin with their first text,
// blanks are joined as HTML joins them, the spaces between paragraphs fall together, and no paragraph or word is so
// long that the toolkit would spend long on it.
class FlowWriter {
 public:
  // Writes behind `html`; this and `classes` outlive the writer.
  FlowWriter(QString& html, StyleClasses& classes, double zoom) : html_(html), classes_(classes), zoom_(zoom) {}

  // What follows stands in a block of this style, so many pixels from the left and the right. Ends the line at hand.
  void block(const PageStyle& style, double left, double right);
  // The next paragraph begins with a bullet, or with a number ("3.").
  void bullet(ListMark mark) { bullet_ = mark; }
  void number(const QString& text) { number_ = text; }
  // At least so much space before the next paragraph.
  void gap(double pixels) { gap_ = std::max(gap_, pixels); }
  // The space due, in pixels as shown, for what is written without this writer. Ends the line at hand.
  [[nodiscard]] int takeGap();

  // Text in the line at hand; it breaks and joins its blanks as `whiteSpace` says. `link` is where it leads, or empty.
  void text(QStringView text, const TextStyle& style, WhiteSpace whiteSpace, const QString& link);
  void lineBreak();
  // Markup that stands in the line like a letter.
  void inlineMarkup(const QString& markup, const TextStyle& style);
  // A place that links may lead to.
  void anchor(const QString& name);
  void endLine();

  // What follows stands in a new cell, whose markup has this style already.
  void beginCell(const PageStyle& style);

 private:
  // Characters of one look that lead to one place.
  struct Run {
    TextStyle style;
    QString link;
    bool operator==(const Run&) const = default;
  };

  void joined(QStringView text, const Run& run, WhiteSpace whiteSpace);
  void kept(QStringView text, const Run& run);
  void letters(QStringView text, const Run& run);
  void open(const Run& run);
  void openRun(const Run& run);
  void closeRun();
  void writeDue(const Run* next);
  void closeParagraph();
  [[nodiscard]] QString paragraphStart();

  QString& html_;
  StyleClasses& classes_;
  double zoom_;

  PageStyle block_;
  double left_ = 0;
  double right_ = 0;
  double gap_ = 0;
  ListMark bullet_ = ListMark::none;
  QString number_;
  QString anchors_;  // due before the next letter

  bool isOpen_ = false;
  QString closing_;                // what ends the paragraph
  TextStyle base_;                 // of the paragraph
  std::optional<PageStyle> cell_;  // where nothing has been written in it yet
  std::optional<Run> run_;
  int breaksDue_ = 0;
  QString blankDue_;
  bool atLineStart_ = true;
  qsizetype length_ = 0;  // of the paragraph, in characters
  qsizetype word_ = 0;    // of the word at hand
};

}  // namespace desktop::pages
