#include "hosts/desktop/screen_picture.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QString>
#include <QTemporaryDir>
#include <QWidget>
#include <algorithm>
#include <tuple>
#include <vector>

#include "hosts/desktop/form_window.h"
#include "hosts/desktop/theme.h"

namespace desktop {
namespace {

constexpr QColor kFrame{0x8A, 0x93, 0xA3};
constexpr QColor kTitleBar{0xE9, 0xEB, 0xEF};
constexpr QColor kDesktop{0xC9, 0xCF, 0xD8};
constexpr int kTitleInset = 10;
constexpr const char* kSessionFolder = "XDG_RUNTIME_DIR";
constexpr double kCross = 4;  // half of the mark that closes a window

// From back to front.
enum class Height { form, palette, window, dialog, popUp };

struct Shown {
  QWidget* widget;
  Height height;
  [[nodiscard]] bool hasFrame() const {
    return height != Height::popUp && !widget->windowFlags().testFlag(Qt::FramelessWindowHint);
  }
  // What lies in a window's frame lies lower than the toolkit believes.
  [[nodiscard]] QRect place() const {
    const QRect inside(widget->pos() + QPoint(0, height == Height::popUp ? kPictureTitleHeight : 0), widget->size());
    return hasFrame() ? inside.adjusted(0, 0, 0, kPictureTitleHeight) : inside;
  }
};

Height heightOf(const QWidget& widget) {
  switch (widget.windowType()) {
    case Qt::Popup:
    case Qt::ToolTip:
      return Height::popUp;
    case Qt::Tool:
      return Height::palette;
    case Qt::Dialog:
    case Qt::Sheet:
      return Height::dialog;
    default:
      return dynamic_cast<const FormWindow*>(&widget) == nullptr ? Height::window : Height::form;
  }
}

std::vector<Shown> shownWindows() {
  std::vector<Shown> all;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible() && !widget->isMinimized()) all.push_back({widget, heightOf(*widget)});
  }
  // The toolkit lists its windows in no order: the program's own names and places decide.
  const auto order = [](const Shown& one) {
    return std::tuple(one.height, one.widget->windowTitle(), one.widget->objectName(), one.widget->y(),
                      one.widget->x());
  };
  std::ranges::sort(all, {}, order);
  return all;
}

void paintFrame(QPainter& painter, const QRect& frame, const QString& title) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  QRectF bar(frame.topLeft(), QSizeF(frame.width(), kPictureTitleHeight));
  painter.fillRect(bar, kTitleBar);
  painter.setPen(theme::kInk);
  painter.drawText(bar.adjusted(kTitleInset, 0, -kPictureTitleHeight, 0),
                   static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter), title);
  painter.translate(bar.right() - kPictureTitleHeight / 2.0, bar.center().y());
  painter.setPen(QPen(theme::kInk, 1.4, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(-kCross, -kCross), QPointF(kCross, kCross));
  painter.drawLine(QPointF(-kCross, kCross), QPointF(kCross, -kCross));
  painter.restore();
}

void paintWindow(QPainter& painter, const Shown& shown) {
  const QRect place = shown.place();
  const int title = shown.hasFrame() ? kPictureTitleHeight : 0;
  if (shown.hasFrame()) paintFrame(painter, place, shown.widget->windowTitle());
  painter.drawPixmap(place.topLeft() + QPoint(0, title), shown.widget->grab());
  if (!shown.hasFrame()) return;
  painter.setPen(QPen(kFrame, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace

UnseenScreen::UnseenScreen(QSize size, double scale) : folder_(std::make_unique<QTemporaryDir>()) {
  const QJsonObject screen{{QStringLiteral("name"), QStringLiteral("screen")},
                           {QStringLiteral("x"), 0},
                           {QStringLiteral("y"), 0},
                           {QStringLiteral("width"), qRound(size.width() * scale)},
                           {QStringLiteral("height"), qRound(size.height() * scale)},
                           {QStringLiteral("logicalDpi"), 96},
                           {QStringLiteral("logicalBaseDpi"), 96},
                           {QStringLiteral("dpr"), 1}};
  QFile file(folder_->filePath(QStringLiteral("screen.json")));
  if (!file.open(QIODevice::WriteOnly)) return;
  file.write(QJsonDocument(QJsonObject{{QStringLiteral("screens"), QJsonArray{screen}}}).toJson());
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
  qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
  if (!qEnvironmentVariableIsSet(kSessionFolder)) qputenv(kSessionFolder, QFile::encodeName(folder_->path()));
}

UnseenScreen::~UnseenScreen() = default;

QImage pictureOfScreen(const Carried& carried) {
  const std::vector<Shown> windows = shownWindows();
  QRect all;
  for (const Shown& shown : windows) all |= shown.place();
  if (all.isEmpty()) return {};
  if (!carried.picture.isNull()) all |= QRect(carried.at, carried.picture.deviceIndependentSize().toSize());
  const double scale = windows.front().widget->devicePixelRatioF();
  QImage picture((QSizeF(all.size()) * scale).toSize(), QImage::Format_RGB32);
  picture.setDevicePixelRatio(scale);
  picture.fill(kDesktop);
  QPainter painter(&picture);
  painter.translate(-all.topLeft());
  for (const Shown& shown : windows) paintWindow(painter, shown);
  painter.drawPixmap(carried.at, carried.picture);
  return picture;
}

bool writeSmall(const QImage& picture, const QString& file, int step) {
  constexpr int kSmallestFile = 0;  // the toolkit's quality of a picture without losses
  QImage few = picture.convertToFormat(QImage::Format_RGB888);
  for (int y = 0; y < few.height(); ++y) {
    uchar* line = few.scanLine(y);
    for (int i = 0; i < 3 * few.width(); ++i) line[i] = static_cast<uchar>((line[i] + step / 2) / step * step);
  }
  // A table of colours takes less room still where it has a place for each.
  const QImage table = few.convertToFormat(QImage::Format_Indexed8, Qt::AvoidDither | Qt::ThresholdDither);
  const bool isExact = table.convertToFormat(QImage::Format_RGB888) == few;
  return (isExact ? table : few).save(file, "PNG", kSmallestFile);
}

}  // namespace desktop
