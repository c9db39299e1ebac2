#pragma once

#include <QAbstractButton>
#include <QString>
#include <vector>

namespace halvane {

/// A two-state button; the one that is down is filled with the highlight colour. Its caption wraps,
/// unless it is to stay in one line, and stands under its picture where it has one. Both are one
/// block in the middle of the button.
///
/// Ribbons with pictures that are in one button group have one size, and their pictures and
/// captions stand level in a row.
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
  /// not larger than picture and caption need.
  void SetPicture(const QString& assetName, int size = kLeastPicture);
  /// Keeps the caption in one line, however wide the button gets by it.
  void SetOneLine();

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  /// What lies behind picture and caption.
  virtual void PaintGround(QPainter& painter) const;
  virtual void PaintFocus(QPainter& painter) const;
  [[nodiscard]] QColor GroundColor() const;

 private:
  [[nodiscard]] QString ShownText() const;
  [[nodiscard]] int CaptionFlags() const;
  [[nodiscard]] int CaptionWidth() const;
  [[nodiscard]] int LeastWidth() const;
  /// Between the edge of the button and its caption.
  [[nodiscard]] int SideRoom() const;
  [[nodiscard]] QSize CaptionSize(int buttonWidth) const;
  /// The ribbons that have one size with this one, itself among them.
  [[nodiscard]] std::vector<const RibbonButton*> Alike() const;
  /// The height that the captions of all these need in buttons of a width.
  [[nodiscard]] int CaptionRoom(int buttonWidth) const;

  void PaintPicture(QPainter& painter, QPoint corner) const;
  [[nodiscard]] QPalette::ColorGroup Group() const;
  [[nodiscard]] QColor TextColor() const;

  QString picture_;  ///< asset name
  bool oneLine_ = false;
};

}  // namespace halvane
