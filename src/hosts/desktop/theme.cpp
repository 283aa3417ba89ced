#include "hosts/desktop/theme.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>
#include <array>

static void initArtwork() { Q_INIT_RESOURCE(artwork); }

namespace desktop::theme {
namespace {

struct Token {
  const char* name;
  QColor color;
};

// What the style sheet calls the colours.
constexpr std::array kTokens{
    Token{"@navy-tint", kNavyTint}, Token{"@navy", kNavy},     Token{"@paper", kPaper}, Token{"@shade", kShade},
    Token{"@card", kCard},          Token{"@border", kBorder}, Token{"@ink", kInk},     Token{"@muted", kMuted},
    Token{"@accent", kAccent},
};

QString styleSheet() {
  QFile file(QStringLiteral(":/veldoria.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString sheet = QString::fromUtf8(file.readAll());
  for (const Token& token : kTokens) sheet.replace(QLatin1String(token.name), token.color.name());
  return sheet;
}

QPalette palette() {
  QPalette palette;
  palette.setColor(QPalette::Window, kPaper);
  palette.setColor(QPalette::WindowText, kInk);
  palette.setColor(QPalette::Base, kCard);
  palette.setColor(QPalette::AlternateBase, kShade);
  palette.setColor(QPalette::Text, kInk);
  palette.setColor(QPalette::Button, kPaper);
  palette.setColor(QPalette::ButtonText, kInk);
  palette.setColor(QPalette::Highlight, kNavy);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, kNavy);
  palette.setColor(QPalette::ToolTipText, Qt::white);
  palette.setColor(QPalette::PlaceholderText, kMuted);
  palette.setColor(QPalette::Link, kAccent);
  palette.setColor(QPalette::Disabled, QPalette::Text, kMuted);
  palette.setColor(QPalette::Disabled, QPalette::WindowText, kMuted);
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, kMuted);
  return palette;
}

}  // namespace

void install(QApplication& application) {
  initArtwork();
  QFont::insertSubstitutions(QStringLiteral("Verdana"), {QStringLiteral("DejaVu Sans")});
  QFont::insertSubstitutions(QStringLiteral("Tahoma"),
                             {QStringLiteral("DejaVu Sans Condensed"), QStringLiteral("DejaVu Sans")});
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(palette());
  QApplication::setFont(font({.name = "Verdana", .points = 9}));
  application.setStyleSheet(styleSheet());
}

QFont font(const forms::FontSpec& spec) {
  constexpr double kPixelsPerPoint = 96.0 / 72.0;
  QFont font(QString::fromStdString(spec.name));
  font.setPixelSize(qMax(1, qRound(spec.points * kPixelsPerPoint)));
  font.setBold(spec.bold);
  return font;
}

QColor color(forms::Color value) { return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF}; }

void paintFocusRing(QPainter& painter, const QRectF& around, double radius) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(kAccent, 2));
  painter.drawRoundedRect(around.adjusted(1, 1, -1, -1), radius, radius);
  painter.restore();
}

}  // namespace desktop::theme
