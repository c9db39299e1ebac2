#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace halvane {

/// A picture whose mask gives its window the outline. Picture and mask come in two sizes, the
/// second one for screens of more than one pixel a logical pixel.
class SplashPicture : public QWidget {
  Q_OBJECT
 public:
  /// `picture` and `mask` are the asset names of the smaller size.
  SplashPicture(const QString& name, const QString& picture, const QString& mask, QWidget* parent);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Gives the window the outline at the resolution of its screen, once for each resolution.
  void ShapeWindow();
  /// The asset in the size for the screen.
  [[nodiscard]] QImage Load(const QString& asset) const;
  /// The mask at so many pixels a logical pixel.
  [[nodiscard]] QImage MaskAt(double ratio) const;

  QString pictureName_;
  QString maskName_;
  QPixmap picture_;
  double shapedRatio_ = 0;
};

}  // namespace halvane
