#pragma once

#include <QPaintDevice>
#include <QRectF>
#include <QStringList>
#include <memory>
#include <vector>

namespace motor {

// A text that was painted: its lines and the box that it takes with its halo, in logical pixels.
struct PaintedText {
  QStringList lines;
  QRectF box;
};

// Paper that keeps no picture but notes the texts with a halo that are painted on it: for each, the outline is stroked
// first, then its lines are written.
class TextRecorder : public QPaintDevice {
 public:
  explicit TextRecorder(QSize size);
  ~TextRecorder() override;

  [[nodiscard]] const std::vector<PaintedText>& texts() const;
  [[nodiscard]] QPaintEngine* paintEngine() const override;

 protected:
  [[nodiscard]] int metric(PaintDeviceMetric metric) const override;

 private:
  class Engine;
  std::unique_ptr<Engine> engine_;
  QSize size_;
};

}  // namespace motor
