#include "widgets/stretched_frame.h"

#include <QImage>
#include <QPainter>
#include <QTransform>
#include <cmath>

#include "widgets/strips.h"

namespace halvane {
namespace {

/// Logical pixels of the small picture: a corner, and what is stretched, in which no pixel may
/// differ from the next.
constexpr int kCorner = 8;
constexpr int kStretched = 3;

/// The small picture and the frame that is made of it; `x` and `y` are pixels of the device in the
/// picture.
class SmallFrame {
 public:
  SmallFrame(int scale, int top)
      : scale_(scale),
        top_(top),
        size_(kCorner + kStretched + kCorner, top + kStretched + kCorner),
        image_(size_ * scale, QImage::Format_ARGB32_Premultiplied) {
    image_.setDevicePixelRatio(scale);
    image_.fill(Qt::transparent);
  }

  [[nodiscard]] QSize size() const { return size_; }

  void Fill(const std::function<void(QPainter&, const QRect&)>& draw) {
    QPainter painter(&image_);
    draw(painter, QRect(QPoint(), size_));
  }

  [[nodiscard]] bool CanBeStretched() const {
    for (int y = 0; y < image_.height(); ++y) {
      for (int x = kCorner * scale_; x < (kCorner + kStretched) * scale_; ++x) {
        if (At(x, y) != At(kCorner * scale_, y)) return false;
      }
    }
    for (int x = 0; x < image_.width(); ++x) {
      for (int y = top_ * scale_; y < (top_ + kStretched) * scale_; ++y) {
        if (At(x, y) != At(x, top_ * scale_)) return false;
      }
    }
    return true;
  }

  void Draw(QPainter& painter, const QRect& area) const {
    DrawCorners(painter, area);
    DrawLines(painter, area);
    DrawMiddle(painter, area);
  }

 private:
  [[nodiscard]] QRgb At(int x, int y) const {
    return reinterpret_cast<const QRgb*>(image_.constScanLine(y))[x];
  }

  [[nodiscard]] double Logical(int pixels) const { return static_cast<double>(pixels) / scale_; }

  void DrawCorners(QPainter& painter, const QRect& area) const {
    const auto corner = [&](QPoint place, const QRect& part) {
      painter.drawImage(place, image_, QRect(part.topLeft() * scale_, part.size() * scale_));
    };
    const int right = area.right() + 1 - kCorner;
    const int bottom = area.bottom() + 1 - kCorner;
    const int rightPart = size_.width() - kCorner;
    const int bottomPart = size_.height() - kCorner;
    corner(area.topLeft(), QRect(0, 0, kCorner, top_));
    corner(QPoint(right, area.top()), QRect(rightPart, 0, kCorner, top_));
    corner(QPoint(area.left(), bottom), QRect(0, bottomPart, kCorner, kCorner));
    corner(QPoint(right, bottom), QRect(rightPart, bottomPart, kCorner, kCorner));
  }

  /// Between the corners above and below.
  void DrawLines(QPainter& painter, const QRect& area) const {
    const int column = kCorner * scale_;
    const auto rows = [&](int first, int end, int shift) {
      for (int y = first; y < end;) {
        const int top = y;
        while (y < end && At(column, y) == At(column, top)) ++y;
        FillWith(painter,
                 QRectF(area.left() + kCorner, area.top() + shift + Logical(top),
                        area.width() - 2 * kCorner, Logical(y - top)),
                 At(column, top));
      }
    };
    rows(0, top_ * scale_, 0);
    rows((size_.height() - kCorner) * scale_, image_.height(), area.height() - size_.height());
  }

  /// Between these, from side to side.
  void DrawMiddle(QPainter& painter, const QRect& area) const {
    const int row = top_ * scale_;
    const int wider = area.width() - size_.width();
    for (int x = 0; x < image_.width();) {
      const int left = x;
      while (x < image_.width() && At(x, row) == At(left, row)) ++x;
      const auto place = [&](int at) {
        return area.left() + Logical(at) + (at > kCorner * scale_ ? wider : 0);
      };
      FillWith(painter,
               QRectF(QPointF(place(left), area.top() + top_),
                      QPointF(place(x), area.bottom() + 1 - kCorner)),
               At(left, row));
    }
  }

  static void FillWith(QPainter& painter, const QRectF& place, QRgb pixel) {
    if (qAlpha(pixel) != 0) painter.fillRect(place, QColor::fromRgba(qUnpremultiply(pixel)));
  }

  int scale_;
  int top_;
  QSize size_;
  QImage image_;
};

}  // namespace

void DrawStretched(QPainter& painter, const QRect& area, int top,
                   const std::function<void(QPainter&, const QRect&)>& draw) {
  const QTransform transform = painter.deviceTransform();
  const double scale = transform.m22();
  const bool isWhole = transform.type() <= QTransform::TxScale && scale > 0 &&
                       scale == std::floor(scale) && transform.m11() == scale;
  if (isWhole) {
    SmallFrame frame(static_cast<int>(scale), top);
    if (frame.size().boundedTo(area.size()) == frame.size()) {
      frame.Fill(draw);
      if (frame.CanBeStretched()) {
        DrawInStrips(painter, area, [&] { frame.Draw(painter, area); });
        return;
      }
    }
  }
  DrawInStrips(painter, area, [&] { draw(painter, area); });
}

}  // namespace halvane
