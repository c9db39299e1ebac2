// The desktop program from its start until its main window is painted.
#include "benchmarks/until_painted.h"
#include "shell/frm_hand_main.h"
#include "shell/halvane_application.h"

int main(int argc, char** argv) {
  halvane::HalvaneApplication application(argc, argv);
  halvane::FrmHandMain window;
  const halvane::UntilPainted end(window);
  window.show();
  const int status = halvane::HalvaneApplication::exec();
  halvane::UntilPainted::PrintPeakMemory();
  return status;
}
