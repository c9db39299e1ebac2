#pragma once

#include <QObject>

class QWidget;

namespace halvane {

/// Keeps keys and mouse from a window for as long as this lives: what was pressed while it shows
/// what holds no more means nothing. The window can be closed all the same.
class InputLock : public QObject {
  Q_OBJECT
 public:
  explicit InputLock(QWidget& window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& window_;
};

}  // namespace halvane
