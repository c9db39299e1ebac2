#pragma once

#include <QImage>
#include <QWidget>

namespace halvane {

/// A picture whose mask gives its window the outline. Both are bare pixels, so that a program that
/// starts with them has nothing to decode, and come in two sizes, the second one for screens of
/// more than one pixel a logical pixel. Whatever lies on the picture casts a shadow on it.
class SplashPicture : public QWidget {
  Q_OBJECT
 public:
  /// `picture` and `mask` are the names of the smaller size, which is `size`.
  SplashPicture(const QString& name, QString picture, QString mask, QSize size, QWidget* parent);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// The pixels of that name in the size for the screen.
  [[nodiscard]] QImage Pixels(const QString& name, QImage::Format format) const;
  [[nodiscard]] QImage Mask() const;
  /// The mask at so many pixels a logical pixel.
  [[nodiscard]] QImage MaskAt(double ratio) const;
  void PaintShadows(QPainter& painter, const QRect& part) const;
  /// Gives the window the outline at the resolution of its screen, once for each resolution.
  void ShapeWindow();

  QString pictureName_;
  QString maskName_;
  QImage picture_;
  double shapedRatio_ = 0;
};

}  // namespace halvane
