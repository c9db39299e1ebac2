#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <fstream>
#include <iostream>
#include <string>

namespace halvane {

/// Ends the program once a window has been painted, and prints its peak memory in kB.
class UntilPainted : public QObject {
 public:
  explicit UntilPainted(QWidget& window) { window.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, this, [] { QApplication::exit(0); });
    return QObject::eventFilter(watched, event);
  }

  static void PrintPeakMemory() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
      if (word != "VmHWM:") continue;
      status >> word;
      std::cout << word << "\n";
      return;
    }
  }
};

}  // namespace halvane
