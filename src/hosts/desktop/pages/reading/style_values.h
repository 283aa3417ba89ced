#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "hosts/desktop/pages/reading/page_style.h"

// Values of styles that are words or several words.
namespace desktop::pages {

// The words of a value; brackets and quotes hold blanks.
[[nodiscard]] QStringList words(const QString& value);

// What a word stands for, in lower case; nothing for another word.
[[nodiscard]] std::optional<Align> alignFrom(const QString& word);
[[nodiscard]] std::optional<VerticalAlign> verticalAlignFrom(const QString& word);
[[nodiscard]] std::optional<WhiteSpace> whiteSpaceFrom(const QString& word);
[[nodiscard]] std::optional<LetterCase> letterCaseFrom(const QString& word);
[[nodiscard]] std::optional<ListMark> listMarkFrom(const QString& word);
[[nodiscard]] std::optional<LineStyle> lineStyleFrom(const QString& word);

// The width of a border, in whole pixels and at least one where it is more than none: "thin", ".5pt".
[[nodiscard]] std::optional<double> lineWidthFrom(const QString& word, double em);

// "1px solid red" in any order. What is not said is as in a border that is not there.
[[nodiscard]] Border borderFrom(const QString& value, double em);

// From 1 to 1000; `outer` is what "bolder" counts from, and what anything else gives.
[[nodiscard]] int weightFrom(const QString& value, int outer);

// The names with commas between; quotes and whatever else could end an attribute are taken out.
[[nodiscard]] QString familiesFrom(const QString& value);

// The pixels of a font's size, within what can be read and shown. `outer` is the size that parts are of.
[[nodiscard]] std::optional<double> fontPixelsFrom(const QString& value, double outer);

// The pixels of a size from 1 to 7, as `<font size>` counts; "+1" and "-1" count from 3.
[[nodiscard]] std::optional<double> numberedFontPixels(const QString& size);

// Times the font, 0 for the font's own.
[[nodiscard]] std::optional<double> lineHeightFrom(const QString& value, double em);

}  // namespace desktop::pages
