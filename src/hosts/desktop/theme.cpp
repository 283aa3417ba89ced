#include "hosts/desktop/theme.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>
#include <QScreen>
#include <QStyleFactory>
#include <array>

#include "hosts/desktop/drawn_size.h"

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

// Lengths beyond those of borders follow the size at which the program draws itself.
QString scaledSheet(const QString& sheet) {
  constexpr int kBorder = 2;
  static const QRegularExpression kLength(QStringLiteral("(\\d+)px"));
  QString result;
  qsizetype done = 0;
  for (auto at = kLength.globalMatch(sheet); at.hasNext();) {
    const QRegularExpressionMatch match = at.next();
    const int length = match.captured(1).toInt();
    result += sheet.mid(done, match.capturedStart() - done);
    result += QString::number(length <= kBorder ? length : scaled(length)) + QLatin1String("px");
    done = match.capturedEnd();
  }
  return result + sheet.mid(done);
}

QString styleSheet() {
  QFile file(QStringLiteral(":/veldoria.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString sheet = QString::fromUtf8(file.readAll());
  for (const Token& token : kTokens) sheet.replace(QLatin1String(token.name), token.color.name());
  return scaledSheet(sheet);
}

constexpr double kPixelsPerPoint = 96.0 / 72.0;

QFont fontOf(const forms::FontSpec& spec, double pixelsPerPoint) {
  QFont font(QString::fromStdString(spec.name));
  font.setPixelSize(qMax(1, qRound(spec.points * pixelsPerPoint)));
  font.setBold(spec.bold);
  return font;
}

// The same letters with a size in points, which the toolkit's own dialogs reckon with.
QFont inPoints(QFont font) {
  constexpr double kPointsPerInch = 72;
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return font;
  font.setPointSizeF(font.pixelSize() * kPointsPerInch / screen->logicalDotsPerInchY());
  return font;
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
  QApplication::setFont(inPoints(font({.name = "Verdana", .points = 9})));
  application.setStyleSheet(styleSheet());
}

QFont font(const forms::FontSpec& spec) { return fontOf(spec, scaled(kPixelsPerPoint)); }

QFont paperFont(const forms::FontSpec& spec) { return fontOf(spec, kPixelsPerPoint); }

void paintFocusRing(QPainter& painter, const QRectF& around, double radius) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(kAccent, 2));
  painter.drawRoundedRect(around.adjusted(1, 1, -1, -1), radius, radius);
  painter.restore();
}

}  // namespace desktop::theme
