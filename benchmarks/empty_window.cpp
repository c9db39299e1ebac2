#include <QApplication>
#include <QWidget>

#include "benchmarks/first_paint.h"

/// The least that a program with a window does, up to its first painted window.
int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QWidget window;
  const halvane::FirstPaint firstPaint(window);
  window.show();
  return QApplication::exec();
}
