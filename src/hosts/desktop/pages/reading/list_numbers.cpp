#include "hosts/desktop/pages/reading/list_numbers.h"

#include <array>

namespace desktop::pages {
namespace {

constexpr int kLetters = 26;
constexpr int kLargestRoman = 3999;

struct RomanDigit {
  int value;
  const char* letters;
};
constexpr std::array kRomanDigits{
    RomanDigit{1000, "M"}, RomanDigit{900, "CM"}, RomanDigit{500, "D"}, RomanDigit{400, "CD"}, RomanDigit{100, "C"},
    RomanDigit{90, "XC"},  RomanDigit{50, "L"},   RomanDigit{40, "XL"}, RomanDigit{10, "X"},   RomanDigit{9, "IX"},
    RomanDigit{5, "V"},    RomanDigit{4, "IV"},   RomanDigit{1, "I"},
};

QString roman(int number) {
  if (number < 1 || number > kLargestRoman) return QString::number(number);
  QString text;
  for (const RomanDigit& digit : kRomanDigits) {
    for (; number >= digit.value; number -= digit.value) text += QLatin1String(digit.letters);
  }
  return text;
}

QString letter(int number) {
  if (number < 1 || number > kLetters) return QString::number(number);
  return QChar(u'A' + number - 1);
}

}  // namespace

QString listNumber(ListMark mark, int number) {
  switch (mark) {
    case ListMark::number:
      return QString::number(number) + u'.';
    case ListMark::letter:
      return letter(number).toLower() + u'.';
    case ListMark::capitalLetter:
      return letter(number) + u'.';
    case ListMark::roman:
      return roman(number).toLower() + u'.';
    case ListMark::capitalRoman:
      return roman(number) + u'.';
    default:
      return {};
  }
}

}  // namespace desktop::pages
