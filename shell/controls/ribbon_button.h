#pragma once

#include <QAbstractButton>

namespace halvane {

/// A two-state button; the one that is down is filled with the highlight colour. Its caption wraps,
/// and stands under its picture where it has one.
class RibbonButton : public QAbstractButton {
  Q_OBJECT
 public:
  RibbonButton(const QString& name, const QString& caption, QWidget* parent = nullptr);

  /// Gives the button a picture by its asset name.
  void SetPicture(const QString& assetName);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int CaptionWidth() const;
};

}  // namespace halvane
