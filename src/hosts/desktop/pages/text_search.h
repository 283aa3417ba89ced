#pragma once

#include <QString>
#include <vector>

class QTextDocument;

namespace desktop::pages {

// A place of a document, in its own positions.
struct Match {
  int position = 0;
  int length = 0;
};

// Where the words stand in the document, in order, at most `most` times. Upper and lower case are alike, and so is a
// letter with an accent to one that is typed without; blanks match blanks of every kind. Nothing for no words.
[[nodiscard]] std::vector<Match> matchesOf(const QTextDocument& document, const QString& words, std::size_t most);

// The same as a regular expression.
[[nodiscard]] QString searchPattern(const QString& words);

}  // namespace desktop::pages
