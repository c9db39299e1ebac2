#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace halvane {

/// Keeps a widget's font at a share of its parent's size, also when that changes. Belongs to the
/// widget.
class FontShare : public QObject {
 public:
  FontShare(QWidget& widget, double share);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowParent();
  void TakeFont();

  QWidget& widget_;
  double share_;
  QPointer<QWidget> parent_;
};

}  // namespace halvane
