#pragma once

#include <QAbstractButton>
#include <QPointer>
#include <QStaticText>
#include <QString>
#include <map>
#include <vector>

namespace halvane {

/// A two-state button; the one that is down is filled with the highlight colour and has a tick in
/// its corner, for eyes that tell no colours apart. Its caption wraps, unless it is to stay in one
/// line, and stands under its picture where it has one. Both are one block in the middle of the
/// button, which gives way under the mouse.
///
/// Ribbons that are in one button group need the same room, and their pictures and captions stand
/// level in a row.
class RibbonButton : public QAbstractButton {
  Q_OBJECT
 public:
  /// Logical pixels that a picture is wide and high, on a small page and on one with room. It grows
  /// in steps, so that a window that is dragged larger draws few pictures anew; so wide a step is
  /// whole device pixels at every usual scale.
  static constexpr int kLeastPicture = 56;
  static constexpr int kLargestPicture = 112;
  static constexpr int kPictureStep = 8;

  RibbonButton(const QString& name, const QString& caption, QWidget* parent = nullptr);

  /// Gives the button a picture by its asset name, so many logical pixels wide and high. It is then
  /// as large as picture and caption need, whatever room there is.
  void SetPicture(const QString& assetName, int size = kLeastPicture);
  /// Keeps the caption in one line, however wide the button gets by it.
  void SetOneLine();
  /// Has a button without a picture get so high, where there is room.
  void SetLargestHeight(int height);
  /// Keeps as much height for the caption as the group of `other` does, which stands beside it.
  void StandLevelWith(const RibbonButton& other);

  /// The asset name of its picture; empty when it has none.
  [[nodiscard]] const QString& Picture() const { return picture_; }
  /// Draws its picture for when it will be painted. False when that has been done.
  bool DrawAhead() const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  /// What lies behind picture and caption.
  virtual void PaintGround(QPainter& painter) const;
  virtual void PaintFocus(QPainter& painter) const;
  /// Marks the one that is down, without a colour.
  virtual void PaintTick(QPainter& painter) const;
  [[nodiscard]] QColor Fill() const;

 private:
  /// What a caption needs in a font; a layout asks for it many times.
  struct Measured {
    QFont font;
    QString text;
    int width = 0;                 ///< 0: not yet known
    std::map<int, QSize> sizes{};  ///< by the width that it has
    QStaticText shown{};           ///< laid out for where it was painted last
  };
  [[nodiscard]] Measured& Known() const;

  [[nodiscard]] QString ShownText() const;
  [[nodiscard]] int CaptionFlags() const;
  [[nodiscard]] int CaptionWidth() const;
  [[nodiscard]] int MeasureCaption() const;
  /// The width that the picture asks for.
  [[nodiscard]] int PictureRoom() const;
  [[nodiscard]] int LeastWidth() const;
  /// Between the edge of the button and its caption.
  [[nodiscard]] int SideRoom() const;
  [[nodiscard]] QSize CaptionSize(int width) const;
  /// The least width in which the caption has no more lines than in `room`: they get alike in
  /// length.
  [[nodiscard]] int EvenWidth(int room) const;
  /// The ribbons that have one size with this one, itself among them.
  [[nodiscard]] std::vector<const RibbonButton*> Alike() const;
  /// The width that all these need, and the height that their captions need in it.
  [[nodiscard]] int GroupWidth() const;
  [[nodiscard]] int GroupCaption() const;
  /// The height that is kept for captions.
  [[nodiscard]] int CaptionRoom() const;

  /// What the picture lies on.
  [[nodiscard]] QColor PictureGround() const;
  /// Width and height of the picture in device pixels.
  [[nodiscard]] int PictureSide(double ratio) const;
  /// Draws the picture in the inks that stand out on what it lies on.
  void PaintPicture(QPainter& painter, QPoint corner) const;
  /// Draws the caption in the middle of its place.
  void PaintCaption(QPainter& painter, const QRect& place) const;
  [[nodiscard]] QPalette::ColorGroup Group() const;
  [[nodiscard]] QColor TextColor() const;

  QString picture_;
  mutable Measured measured_;
  bool oneLine_ = false;
  int largestHeight_ = 0;
  std::vector<QPointer<const RibbonButton>> neighbours_;
};

}  // namespace halvane
