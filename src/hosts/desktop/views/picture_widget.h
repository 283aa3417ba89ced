#pragma once

#include <QWidget>
#include <string>

namespace desktop {

// A drawing that is only looked at; the pointer goes through it.
class PictureWidget : public QWidget {
 public:
  PictureWidget(std::string picture, QWidget& parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::string picture_;
};

}  // namespace desktop
