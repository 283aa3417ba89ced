#pragma once

#include <QColor>
#include <QFont>
#include <QWidget>

#include "forms/control.h"

class QApplication;

// How the program looks: its colours, its fonts and the style sheet of the toolkit's own controls.
namespace desktop::theme {

inline constexpr QColor kNavy{0x14, 0x2B, 0x4D};      // the header, chosen things
inline constexpr QColor kNavyDeep{0x0D, 0x1E, 0x38};  // pressed things, splash
inline constexpr QColor kNavyTint{0xE4, 0xEA, 0xF3};  // things under the pointer
inline constexpr QColor kPaper{0xF4, 0xF1, 0xEA};     // the window
inline constexpr QColor kShade{0xEC, 0xE8, 0xDE};     // things under the pointer on a card, things out of use
inline constexpr QColor kCard{0xFF, 0xFF, 0xFF};      // pages, lists, boxes
inline constexpr QColor kBorder{0xDD, 0xD8, 0xCC};
inline constexpr QColor kInk{0x1F, 0x2A, 0x3C};    // text
inline constexpr QColor kMuted{0x5E, 0x69, 0x7A};  // text of less weight
inline constexpr QColor kAccent{0xC5, 0x56, 0x36};

inline constexpr double kRadius = 6;

// Fonts, palette and style sheet of the whole application.
void install(QApplication& application);

// The font in logical pixels: the same size on every desktop, whatever its own idea of a point.
[[nodiscard]] QFont font(const forms::FontSpec& spec);

// The same for paper, whose size no screen has a say in.
[[nodiscard]] QFont paperFont(const forms::FontSpec& spec);

[[nodiscard]] QColor color(forms::Color value);

// A ring around something that has the keyboard.
void paintFocusRing(QPainter& painter, const QRectF& around, double radius = kRadius);

}  // namespace desktop::theme
