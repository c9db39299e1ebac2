#include "benchmarks/first_paint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "benchmarks/cpu_seconds.h"

namespace halvane {
namespace {

[[noreturn]] void PrintAndEnd() {
  const double seconds = CpuSeconds();
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word && word != "VmHWM:") {
  }
  std::string peak;
  status >> peak;
  std::printf("cpu\t%.9f\npeak\t%s\n", seconds, peak.c_str());
  std::fflush(stdout);
  std::_Exit(peak.empty() ? 1 : 0);
}

}  // namespace

FirstPaint::FirstPaint(QWidget& window) { window.installEventFilter(this); }

bool FirstPaint::eventFilter(QObject* watched, QEvent* event) {
  // The window's children are painted and shown in the same turn of the event loop.
  if (event->type() == QEvent::Paint) QTimer::singleShot(0, &PrintAndEnd);
  return QObject::eventFilter(watched, event);
}

}  // namespace halvane
