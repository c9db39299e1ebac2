#include <QApplication>
#include <QLabel>

#include "benchmarks/first_paint.h"

/// The least that a program with a line of text in its window does, up to its first painted window.
int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QLabel window("Text");
  const halvane::FirstPaint firstPaint(window);
  window.show();
  return QApplication::exec();
}
