#pragma once

#include <QAbstractButton>
#include <QString>

namespace halvane {

/// A two-state button; the one that is down is filled with the highlight colour. Its caption wraps,
/// unless it is to stay in one line, and stands under its picture where it has one.
class RibbonButton : public QAbstractButton {
  Q_OBJECT
 public:
  RibbonButton(const QString& name, const QString& caption, QWidget* parent = nullptr);

  /// Gives the button a picture by its asset name, so many logical pixels wide and high.
  void SetPicture(const QString& assetName, int size = kPictureSize);
  /// Keeps the caption in one line, however wide the button gets by it.
  void SetOneLine();

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int kPictureSize = 56;

  [[nodiscard]] QString ShownText() const;
  [[nodiscard]] int CaptionFlags() const;
  [[nodiscard]] int CaptionWidth() const;
  /// Draws the picture into `place`, in the inks that stand out on `ground`.
  void DrawPicture(QPainter& painter, const QRect& place, const QColor& ground) const;

  QString picture_;  ///< asset name
  bool oneLine_ = false;
};

}  // namespace halvane
