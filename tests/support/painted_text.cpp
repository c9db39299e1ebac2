#include "tests/support/painted_text.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>
#include <algorithm>

namespace halvane {
namespace {

/// Writes down the texts and leaves the rest.
class TextEngine : public QPaintEngine {
 public:
  explicit TextEngine(std::vector<PaintedText>& texts)
      : QPaintEngine(QPaintEngine::AllFeatures), texts_(texts) {}

  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState& /*state*/) override {}
  [[nodiscard]] Type type() const override { return User; }

  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    if (item.text().trimmed().isEmpty()) return;
    const QTransform toWidget = painter()->deviceTransform();
    const QFontMetricsF font(item.font());
    QRectF ink = font.tightBoundingRect(item.text());
    // The hook of a J reaches out of its own width; nobody makes room for it.
    ink.setLeft(std::max(ink.left(), 0.0));
    ink.setRight(std::min(ink.right(), font.horizontalAdvance(item.text())));
    ink.translate(at);
    QRegion clip = systemClip();
    if (painter()->hasClipping()) clip &= toWidget.map(painter()->clipRegion());
    texts_.push_back({item.text(), toWidget.mapRect(ink), clip, painter()->pen().color()});
  }

  void drawPixmap(const QRectF& /*to*/, const QPixmap& /*picture*/,
                  const QRectF& /*from*/) override {}
  void drawTiledPixmap(const QRectF& /*to*/, const QPixmap& /*picture*/,
                       const QPointF& /*from*/) override {}
  void drawImage(const QRectF& /*to*/, const QImage& /*picture*/, const QRectF& /*from*/,
                 Qt::ImageConversionFlags /*flags*/) override {}
  void drawPath(const QPainterPath& /*path*/) override {}
  void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
  void drawPolygon(const QPoint* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
  void drawRects(const QRectF* /*rects*/, int /*count*/) override {}
  void drawRects(const QRect* /*rects*/, int /*count*/) override {}
  void drawLines(const QLineF* /*lines*/, int /*count*/) override {}
  void drawLines(const QLine* /*lines*/, int /*count*/) override {}
  void drawPoints(const QPointF* /*points*/, int /*count*/) override {}
  void drawPoints(const QPoint* /*points*/, int /*count*/) override {}
  void drawEllipse(const QRectF& /*place*/) override {}
  void drawEllipse(const QRect& /*place*/) override {}

 private:
  std::vector<PaintedText>& texts_;
};

/// As large and as fine as a widget.
class TextDevice : public QPaintDevice {
 public:
  TextDevice(const QWidget& widget, std::vector<PaintedText>& texts)
      : widget_(widget), engine_(texts) {}

  [[nodiscard]] QPaintEngine* paintEngine() const override { return &engine_; }

 protected:
  [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth: return widget_.width();
      case PdmHeight: return widget_.height();
      case PdmWidthMM: return widget_.widthMM();
      case PdmHeightMM: return widget_.heightMM();
      case PdmDpiX:
      case PdmPhysicalDpiX: return widget_.logicalDpiX();
      case PdmDpiY:
      case PdmPhysicalDpiY: return widget_.logicalDpiY();
      case PdmNumColors: return widget_.colorCount();
      case PdmDepth: return widget_.depth();
      case PdmDevicePixelRatio: return 1;
      case PdmDevicePixelRatioScaled: return static_cast<int>(devicePixelRatioFScale());
      default: return QPaintDevice::metric(metric);
    }
  }

 private:
  const QWidget& widget_;
  mutable TextEngine engine_;
};

}  // namespace

std::vector<PaintedText> TextsPaintedBy(QWidget& widget, const QRegion& region) {
  std::vector<PaintedText> texts;
  TextDevice device(widget, texts);
  widget.render(&device, region.boundingRect().topLeft(), region);
  return texts;
}

}  // namespace halvane
