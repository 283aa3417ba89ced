#pragma once

#include <QFont>
#include <QSize>
#include <QString>

namespace desktop {

// A text made to fit a box: broken at blanks where it needs more than a line, in a smaller font where that is not
// enough, and cut with an ellipsis only as the last resort.
struct FittedText {
  QFont font;
  QString text;
  bool isCut = false;
};

[[nodiscard]] FittedText fitText(const QString& text, const QFont& font, QSize box);

}  // namespace desktop
