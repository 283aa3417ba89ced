#include "hosts/desktop/views/picture_widget.h"

#include <QPainter>
#include <utility>

#include "hosts/desktop/artwork.h"

namespace desktop {

PictureWidget::PictureWidget(std::string picture, QWidget& parent) : QWidget(&parent), picture_(std::move(picture)) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  artwork::paint(painter, picture_, rect());
}

}  // namespace desktop
