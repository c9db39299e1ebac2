#include "shell/controls/splash_picture.h"

#include <QPainter>
#include <QRegion>
#include <cmath>
#include <vector>

#include "shell/platform_x11.h"

namespace halvane {
namespace {

constexpr int kHalf = 128;

/// What is white in a mask.
QRegion RegionOf(const QImage& mask) {
  std::vector<QRect> spans;
  for (int y = 0; y < mask.height(); ++y) {
    const uchar* row = mask.constScanLine(y);
    for (int x = 0; x < mask.width(); ++x) {
      if (row[x] < kHalf) continue;
      const int left = x;
      while (x < mask.width() && row[x] >= kHalf) ++x;
      spans.emplace_back(left, y, x - left, 1);
    }
  }
  QRegion region;
  region.setRects(spans.data(), static_cast<int>(spans.size()));
  return region;
}

}  // namespace

SplashPicture::SplashPicture(const QString& name, const QString& picture, const QString& mask,
                             QWidget* parent)
    : QWidget(parent), pictureName_(picture), maskName_(mask) {
  setObjectName(name);
}

QImage SplashPicture::Load(const QString& asset) const {
  const QString size = devicePixelRatioF() > 1 ? "@2x" : "";
  QImage image(":/assets/" + asset + size + ".png");
  // Known by its name, so that it is not taken for a picture of twice the logical size.
  image.setDevicePixelRatio(1);
  return image;
}

QImage SplashPicture::MaskAt(double ratio) const {
  const QImage mask = Load(maskName_).convertToFormat(QImage::Format_Grayscale8);
  const QSize wanted(static_cast<int>(std::lround(width() * ratio)),
                     static_cast<int>(std::lround(height() * ratio)));
  if (mask.size() == wanted) return mask;
  return mask.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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

void SplashPicture::paintEvent(QPaintEvent* /*event*/) {
  // The window may have come to another screen.
  ShapeWindow();
  if (picture_.isNull()) {
    QImage image = Load(pictureName_);
    // A system that cannot cut the window shows what is under its transparent pixels.
    if (window()->testAttribute(Qt::WA_TranslucentBackground)) {
      image.setAlphaChannel(Load(maskName_).convertToFormat(QImage::Format_Grayscale8));
    }
    picture_ = QPixmap::fromImage(std::move(image));
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(rect(), picture_);
}

}  // namespace halvane
