#include "motor/window/overlays/text_recorder.h"

#include <QPaintEngine>
#include <QPainterPath>
#include <QTransform>

namespace motor {

namespace {

constexpr int kDotsPerInch = 96;
constexpr double kMillimetresPerInch = 25.4;
constexpr int kColours = 24;

int millimetres(int pixels) { return qRound(pixels * kMillimetresPerInch / kDotsPerInch); }

}  // namespace

class TextRecorder::Engine : public QPaintEngine {
 public:
  Engine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  [[nodiscard]] Type type() const override { return User; }
  void updateState(const QPaintEngineState& changed) override {
    if (changed.state() & DirtyTransform) transform_ = changed.transform();
    if (changed.state() & DirtyPen) halfPen_ = changed.pen().widthF() / 2;
  }
  void drawPath(const QPainterPath& path) override {
    last_ = transform_.mapRect(path.boundingRect().adjusted(-halfPen_, -halfPen_, halfPen_, halfPen_));
    isNew_ = true;
  }
  void drawTextItem(const QPointF&, const QTextItem& item) override {
    if (isNew_) texts_.push_back({{}, last_});
    isNew_ = false;
    if (!texts_.empty()) texts_.back().lines.append(item.text());
  }
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

  [[nodiscard]] const std::vector<PaintedText>& texts() const { return texts_; }

 private:
  QTransform transform_;
  double halfPen_ = 0;
  QRectF last_;
  bool isNew_ = false;
  std::vector<PaintedText> texts_;
};

TextRecorder::TextRecorder(QSize size) : engine_(std::make_unique<Engine>()), size_(size) {}

TextRecorder::~TextRecorder() = default;

const std::vector<PaintedText>& TextRecorder::texts() const { return engine_->texts(); }

QPaintEngine* TextRecorder::paintEngine() const { return engine_.get(); }

int TextRecorder::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth:
      return size_.width();
    case PdmHeight:
      return size_.height();
    case PdmWidthMM:
      return millimetres(size_.width());
    case PdmHeightMM:
      return millimetres(size_.height());
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return kDotsPerInch;
    case PdmDepth:
      return kColours;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return qRound(devicePixelRatioFScale());
    default:
      return 0;
  }
}

}  // namespace motor
