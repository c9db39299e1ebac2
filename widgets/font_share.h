#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>

class QFont;
class QWidget;

namespace halvane {

/// Keeps a widget's font at a share of its parent's size, also when that changes, or less where its
/// text would not fit into the room that it has. Belongs to the widget.
class FontShare : public QObject {
 public:
  FontShare(QWidget& widget, double share, QSize room = {});

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowParent();
  void TakeFont();
  /// The share of `font` with which the text fits.
  [[nodiscard]] double ShareThatFits(const QFont& font) const;

  QWidget& widget_;
  double share_;
  QSize room_;  ///< invalid: as much as the text needs
  QPointer<QWidget> parent_;
};

}  // namespace halvane
