// An empty window of the same size from the program's start until it is painted.
#include "benchmarks/until_painted.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setFixedSize(306, 501);
  const halvane::UntilPainted end(window);
  window.show();
  const int status = QApplication::exec();
  halvane::UntilPainted::PrintPeakMemory();
  return status;
}
