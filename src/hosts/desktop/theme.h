#pragma once

#include <QColor>
#include <QFont>
#include <QWidget>

#include "forms/control.h"
#include "hosts/screen/palette.h"

class QApplication;

// How the program looks: its colours, its fonts and the style sheet of the toolkit's own controls.
namespace desktop::theme {

[[nodiscard]] constexpr QColor color(forms::Color value) {
  return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

inline constexpr QColor kNavy = color(screen::palette::kNavy);
inline constexpr QColor kNavyDeep = color(screen::palette::kNavyDeep);
inline constexpr QColor kNavyTint = color(screen::palette::kNavyTint);
inline constexpr QColor kPaper = color(screen::palette::kPaper);
inline constexpr QColor kShade = color(screen::palette::kShade);
inline constexpr QColor kCard = color(screen::palette::kCard);
inline constexpr QColor kBorder = color(screen::palette::kBorder);
inline constexpr QColor kInk = color(screen::palette::kInk);
inline constexpr QColor kMuted = color(screen::palette::kMuted);
inline constexpr QColor kAccent = color(screen::palette::kAccent);

inline constexpr double kRadius = 6;

// Fonts, palette and style sheet of the whole application.
void install(QApplication& application);

// The font in logical pixels: the same size on every desktop, whatever its own idea of a point.
[[nodiscard]] QFont font(const forms::FontSpec& spec);

// The same for paper, whose size no screen has a say in.
[[nodiscard]] QFont paperFont(const forms::FontSpec& spec);

// A ring around something that has the keyboard.
void paintFocusRing(QPainter& painter, const QRectF& around, double radius = kRadius);

}  // namespace desktop::theme
