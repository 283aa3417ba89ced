#include "hosts/desktop/pages/reading/style_properties.h"

#include <QHash>
#include <algorithm>
#include <array>
#include <functional>

#include "hosts/desktop/pages/reading/style_values.h"

namespace desktop::pages {
namespace {

// A declaration at work.
struct Work {
  const QString& value;
  const PageStyle& outer;
  PageStyle& style;

  [[nodiscard]] double em() const { return style.text.pixels; }
  [[nodiscard]] QString word() const { return value.toLower(); }
};

template <class Value>
void take(Value& into, const std::optional<Value>& read) {
  if (read) into = *read;
}

void takePixels(double& into, const QString& value, double em, double least = 0) {
  if (const auto read = lengthFrom(value, em); read && read->isPixels()) into = std::max(least, read->value);
}

void readFontSize(const Work& work) {
  take(work.style.text.pixels, fontPixelsFrom(work.value, work.outer.text.pixels));
}

// "italic bold 10pt/12pt Arial, Verdana": what stands behind the size are the families.
void readFont(const Work& work) {
  constexpr int kLeastWeight = 100;
  const QStringList all = words(work.value);
  for (qsizetype i = 0; i < all.size(); ++i) {
    const bool isWeight = all[i].toInt() >= kLeastWeight;
    const auto size = fontPixelsFrom(all[i].section(u'/', 0, 0), work.outer.text.pixels);
    if (size && !isWeight) {
      work.style.text.pixels = *size;
      work.style.text.families = familiesFrom(all.sliced(i + 1).join(u' '));
      return;
    }
    const QString word = all[i].toLower();
    if (word == QLatin1String("italic") || word == QLatin1String("oblique")) work.style.text.isItalic = true;
    work.style.text.weight = weightFrom(word, work.style.text.weight);
  }
}

void readDecoration(const Work& work) {
  work.style.text.isUnderlined = work.word().contains(QLatin1String("underline"));
  work.style.text.isStruckOut = work.word().contains(QLatin1String("line-through"));
}

void readBackground(const Work& work) {
  for (const QString& word : words(work.value)) take(work.style.background, colorFrom(word));
}

void readVertical(const Work& work) {
  const auto read = verticalAlignFrom(work.word());
  if (read == VerticalAlign::sub || read == VerticalAlign::super) {
    work.style.text.script = *read;
  } else {
    take(work.style.vertical, read);
  }
}

void readMark(const Work& work) {
  for (const QString& word : words(work.word())) take(work.style.mark, listMarkFrom(word));
}

void readSpacing(const Work& work) {
  const QStringList all = words(work.value);
  if (!all.isEmpty()) takePixels(work.style.borderSpacing, all.first(), work.em());
}

void readDisplay(const Work& work) { work.style.isHidden = work.word() == QLatin1String("none"); }

void readVisibility(const Work& work) {
  if (work.word() == QLatin1String("collapse")) work.style.isHidden = true;
}

// What is said of each side: one to four values (all; top and bottom, left and right; top, left and right, bottom;
// each).
template <class Read>
void readSides(const QString& value, Read read) {
  constexpr std::array<Sides<qsizetype>, 4> kWhich{{{0, 0, 0, 0}, {0, 1, 0, 1}, {0, 1, 2, 1}, {0, 1, 2, 3}}};
  const QStringList all = words(value);
  if (all.isEmpty() || all.size() > 4) return;
  const auto& which = kWhich[static_cast<std::size_t>(all.size() - 1)];
  for (const Side side : {kTop, kRight, kBottom, kLeft}) read(all[which[side]], side);
}

void readMarginSide(const QString& value, const Work& work, Side side) {
  take(work.style.margin[side], lengthFrom(value, work.em()));
}

void readPaddingSide(const QString& value, const Work& work, Side side) {
  takePixels(work.style.padding[side], value, work.em());
}

void readBorderSide(const QString& value, const Work& work, Side side) {
  work.style.border[side] = borderFrom(value, work.em());
}

void readBorderWidth(const QString& value, const Work& work, Side side) {
  take(work.style.border[side].pixels, lineWidthFrom(value.toLower(), work.em()));
}

void readBorderLine(const QString& value, const Work& work, Side side) {
  constexpr double kMediumLine = 2;
  Border& border = work.style.border[side];
  if (!border.isSeen() && border.pixels == 0) border.pixels = kMediumLine;
  take(border.line, lineStyleFrom(value.toLower()));
}

void readBorderColor(const QString& value, const Work& work, Side side) {
  take(work.style.border[side].color, colorFrom(value));
}

// A property of all sides: its name before and behind that of the side ("border-top-color").
struct SideProperty {
  QLatin1String before;
  QLatin1String behind;
  void (*read)(const QString& value, const Work& work, Side side);
};

constexpr std::array kSideProperties{
    SideProperty{QLatin1String("margin"), QLatin1String(""), readMarginSide},
    SideProperty{QLatin1String("padding"), QLatin1String(""), readPaddingSide},
    SideProperty{QLatin1String("border"), QLatin1String("-width"), readBorderWidth},
    SideProperty{QLatin1String("border"), QLatin1String("-style"), readBorderLine},
    SideProperty{QLatin1String("border"), QLatin1String("-color"), readBorderColor},
};

struct SideName {
  const char* name;
  Side side;
};
constexpr std::array kSideNames{SideName{"-top", kTop}, SideName{"-right", kRight}, SideName{"-bottom", kBottom},
                                SideName{"-left", kLeft}};

using Reader = std::function<void(const Work&)>;
using Readers = QHash<QString, Reader>;

// Those that others are counted by.
const Readers& fontReaders() {
  static const Readers table{{QStringLiteral("font"), readFont}, {QStringLiteral("font-size"), readFontSize}};
  return table;
}

Readers textReaders() {
  return {
      {QStringLiteral("color"), [](const Work& w) { take(w.style.text.color, colorFrom(w.value)); }},
      {QStringLiteral("font-family"), [](const Work& w) { w.style.text.families = familiesFrom(w.value); }},
      {QStringLiteral("font-weight"),
       [](const Work& w) { w.style.text.weight = weightFrom(w.value, w.outer.text.weight); }},
      {QStringLiteral("font-style"),
       [](const Work& w) { w.style.text.isItalic = w.word() != QLatin1String("normal"); }},
      {QStringLiteral("text-decoration"), readDecoration},
      {QStringLiteral("text-decoration-line"), readDecoration},
      {QStringLiteral("text-transform"), [](const Work& w) { take(w.style.text.letters, letterCaseFrom(w.word())); }},
      {QStringLiteral("text-align"), [](const Work& w) { take(w.style.align, alignFrom(w.word())); }},
      {QStringLiteral("text-indent"),
       [](const Work& w) { takePixels(w.style.textIndent, w.value, w.em(), -kLongest); }},
      {QStringLiteral("vertical-align"), readVertical},
      {QStringLiteral("white-space"), [](const Work& w) { take(w.style.whiteSpace, whiteSpaceFrom(w.word())); }},
      {QStringLiteral("line-height"), [](const Work& w) { take(w.style.lineHeight, lineHeightFrom(w.value, w.em())); }},
      {QStringLiteral("list-style"), readMark},
      {QStringLiteral("list-style-type"), readMark},
  };
}

Readers boxReaders() {
  return {
      {QStringLiteral("background"), readBackground},
      {QStringLiteral("background-color"), readBackground},
      {QStringLiteral("border-collapse"),
       [](const Work& w) { w.style.collapsesBorders = w.word() == QLatin1String("collapse"); }},
      {QStringLiteral("border-spacing"), readSpacing},
      {QStringLiteral("width"), [](const Work& w) { take(w.style.width, lengthFrom(w.value, w.em())); }},
      {QStringLiteral("min-width"), [](const Work& w) { takePixels(w.style.minWidth, w.value, w.em()); }},
      {QStringLiteral("max-width"), [](const Work& w) { takePixels(w.style.maxWidth, w.value, w.em()); }},
      {QStringLiteral("height"), [](const Work& w) { takePixels(w.style.height, w.value, w.em()); }},
      {QStringLiteral("display"), readDisplay},
      {QStringLiteral("visibility"), readVisibility},
  };
}

void addSides(Readers& table, const SideProperty& property) {
  const auto all = [read = property.read](const Work& work) {
    readSides(work.value, [&](const QString& value, Side side) { read(value, work, side); });
  };
  table.insert(property.before + property.behind, all);
  for (const SideName& name : kSideNames) {
    table.insert(property.before + QLatin1String(name.name) + property.behind,
                 [read = property.read, side = name.side](const Work& work) { read(work.value, work, side); });
  }
}

const Readers& readers() {
  static const Readers table = [] {
    Readers all = textReaders();
    all.insert(boxReaders());
    for (const SideProperty& property : kSideProperties) addSides(all, property);
    for (const SideName& name : kSideNames) {
      all.insert(QLatin1String("border") + QLatin1String(name.name),
                 [side = name.side](const Work& work) { readBorderSide(work.value, work, side); });
    }
    all.insert(QStringLiteral("border"), [](const Work& work) {
      for (const Side side : {kTop, kRight, kBottom, kLeft}) readBorderSide(work.value, work, side);
    });
    return all;
  }();
  return table;
}

void applyAll(const Readers& table, const std::vector<const Declarations*>& declarations, const PageStyle& outer,
              PageStyle& style) {
  for (const bool important : {false, true}) {
    for (const Declarations* block : declarations) {
      for (const Declaration& each : *block) {
        if (each.isImportant != important) continue;
        const auto reader = table.find(each.property);
        if (reader != table.end()) (*reader)({each.value, outer, style});
      }
    }
  }
}

}  // namespace

void apply(const std::vector<const Declarations*>& declarations, const PageStyle& outer, PageStyle& style) {
  applyAll(fontReaders(), declarations, outer, style);
  applyAll(readers(), declarations, outer, style);
}

}  // namespace desktop::pages
