#include "shell/frm_hand_main.h"
#include "shell/halvane_application.h"

int main(int argc, char** argv) {
  halvane::HalvaneApplication application(argc, argv);
  // The end of the program is asked for, never a side effect of a window that closes.
  halvane::HalvaneApplication::setQuitOnLastWindowClosed(false);
  halvane::FrmHandMain window;
  window.show();
  return halvane::HalvaneApplication::exec();
}
