#include "app/tool_forms.h"
#include "benchmarks/first_paint.h"
#include "shell/frm_hand_main.h"
#include "shell/halvane_application.h"

/// The start of the desktop program, up to its first painted window.
int main(int argc, char** argv) {
  halvane::HalvaneApplication application(argc, argv);
  halvane::HalvaneApplication::setQuitOnLastWindowClosed(false);
  halvane::FrmHandMain window(halvane::MakeToolForm);
  const halvane::FirstPaint firstPaint(window);
  window.show();
  application.WatchOverJob();
  return application.Run();
}
