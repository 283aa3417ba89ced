#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace desktop {

class TabRow;

// A row of headings over a page with rounded corners.
class TabPages : public QWidget {
 public:
  TabPages(const std::vector<std::string>& captions, QWidget& parent);

  [[nodiscard]] TabRow* row() const { return row_; }

  // The usual height of the headings in pixels.
  static constexpr int kHeadingHeight = 26;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  TabRow* row_;
};

}  // namespace desktop
