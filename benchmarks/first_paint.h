#pragma once

#include <QObject>

class QWidget;

namespace halvane {

/// Ends the program as soon as the first paint of a window is done, and prints the seconds of work
/// and the peak of memory in KiB until then. What a program does to end is left out.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QWidget& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace halvane
