#include "widgets/splash_picture.h"

#include <QPaintEvent>
#include <QPainter>
#include <QRegion>
#include <QResource>
#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>
#include <vector>

#include "platform/platform_x11.h"
#include "widgets/raised_face.h"

namespace halvane {
namespace {

/// What is white in a mask of one bit a pixel.
QRegion RegionOf(const QImage& mask) {
  const int width = mask.width();
  // Turned so that a set bit is inside.
  const unsigned turn = qGray(mask.color(1)) > qGray(mask.color(0)) ? 0 : 0xFFU;
  std::vector<QRect> spans;
  for (int y = 0; y < mask.height(); ++y) {
    const uchar* row = mask.constScanLine(y);
    int left = -1;
    unsigned before = 0;
    for (int x = 0; x < width; x += 8) {
      // Bits behind the last pixel are outside.
      const unsigned padding = (1U << std::max(0, x + 8 - width)) - 1;
      const unsigned byte = (row[x / 8] ^ turn) & ~padding;
      // A set bit for each pixel that is not what the pixel before it is.
      auto ends = static_cast<uchar>(byte ^ (byte >> 1 | before << 7));
      for (; ends != 0; ends &= static_cast<uchar>(0x7FU >> std::countl_zero(ends))) {
        const int edge = x + std::countl_zero(ends);
        if (left >= 0) spans.emplace_back(left, y, edge - left, 1);
        left = left < 0 ? edge : -1;
      }
      before = byte & 1;
    }
    if (left >= 0) spans.emplace_back(left, y, width - left, 1);
  }
  QRegion region;
  region.setRects(spans.data(), static_cast<int>(spans.size()));
  return region;
}

}  // namespace

SplashPicture::SplashPicture(const QString& name, QString picture, QString mask, QSize size,
                             QWidget* parent)
    : QWidget(parent), pictureName_(std::move(picture)), maskName_(std::move(mask)) {
  setObjectName(name);
  setFixedSize(size);
}

QImage SplashPicture::Pixels(const QString& name, QImage::Format format) const {
  const bool large = devicePixelRatioF() > 1;
  const QResource resource(":/pixels/" + name + (large ? "@2x.pixels" : ".pixels"));
  const QSize size = this->size() * (large ? 2 : 1);
  const QByteArray bytes = resource.uncompressedData();
  const auto* first = reinterpret_cast<const uchar*>(bytes.constData());
  const auto bytesPerLine = static_cast<int>(bytes.size() / size.height());
  const QImage image(first, size.width(), size.height(), bytesPerLine, format);
  // The image only refers to the bytes, and those that were packed go with this function.
  const bool stay = resource.compressionAlgorithm() == QResource::NoCompression;
  return stay ? image : image.copy();
}

QImage SplashPicture::Mask() const {
  QImage mask = Pixels(maskName_, QImage::Format_Mono);
  mask.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
  return mask;
}

QImage SplashPicture::MaskAt(double ratio) const {
  const QImage mask = Mask();
  const QSize wanted(static_cast<int>(std::lround(width() * ratio)),
                     static_cast<int>(std::lround(height() * ratio)));
  if (mask.size() == wanted) return mask;
  return mask.convertToFormat(QImage::Format_Grayscale8)
      .scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
}

void SplashPicture::ShapeWindow() {
  const double ratio = devicePixelRatioF();
  if (ratio == shapedRatio_) return;
  shapedRatio_ = ratio;
  picture_ = {};
  if (!ShapeX11Window(*window(), RegionOf(MaskAt(ratio)))) window()->setMask(RegionOf(MaskAt(1)));
}

void SplashPicture::showEvent(QShowEvent* event) {
  // The window has been made and is not yet seen.
  ShapeWindow();
  QWidget::showEvent(event);
}

void SplashPicture::PaintShadows(QPainter& painter, const QRect& part) const {
  const QList<QWidget*> beside =
      parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (const QWidget* control : beside) {
    if (control == this || control->isWindow() || !control->isVisible()) continue;
    const QRect place(mapFromParent(control->pos()), control->size());
    if (ShadowOf(place).intersects(part)) PaintSoftShadow(painter, place);
  }
}

void SplashPicture::paintEvent(QPaintEvent* event) {
  // The window may have come to another screen.
  ShapeWindow();
  if (picture_.isNull()) {
    picture_ = Pixels(pictureName_, QImage::Format_RGB32);
    // A system that cannot cut the window shows what is under its transparent pixels.
    if (window()->testAttribute(Qt::WA_TranslucentBackground)) {
      picture_.setAlphaChannel(Mask().convertToFormat(QImage::Format_Grayscale8));
    }
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(rect(), picture_);
  PaintShadows(painter, event->rect());
}

}  // namespace halvane
