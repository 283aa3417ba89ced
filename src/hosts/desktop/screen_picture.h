#pragma once

#include <QImage>
#include <QPixmap>
#include <QPoint>
#include <QSize>
#include <memory>

class QTemporaryDir;

namespace desktop {

// Where there is no display: a screen of that size in logical pixels and at that scale for the toolkit, to be made
// before the application and kept as long as it. Without a display there may be no session either: the toolkit then
// gets a folder for the running program, which goes with the screen.
class UnseenScreen {
 public:
  UnseenScreen(QSize size, double scale);
  ~UnseenScreen();
  UnseenScreen(const UnseenScreen&) = delete;
  UnseenScreen& operator=(const UnseenScreen&) = delete;

 private:
  std::unique_ptr<QTemporaryDir> folder_;
};

// The height of the plain title bar that a window has in a picture of the screen; logical pixels.
inline constexpr int kPictureTitleHeight = 30;

// What the pointer carries over the screen, and where its upper left corner is.
struct Carried {
  QPixmap picture;
  QPoint at;
};

// What the program shows now, as it stands on a desktop: the working window at the back, its palettes in front of it,
// then other windows, dialogs, open lists and menus. Windows have plain frames: without a display nobody else puts
// frames around them. What is `carried` lies in front of all. As large as all of them together; null when nothing is
// shown. At the scale of the screen.
[[nodiscard]] QImage pictureOfScreen(const Carried& carried = {});

// Writes a picture as a PNG file that takes little room: each colour channel is rounded to a multiple of `step`, which
// divides 255. False when it cannot be written.
[[nodiscard]] bool writeSmall(const QImage& picture, const QString& file, int step);

}  // namespace desktop
