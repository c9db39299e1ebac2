#include "app/tool_forms.h"
#include "platform/end_signals.h"
#include "shell/frm_hand_main.h"
#include "shell/halvane_application.h"

namespace {

int RunProgram(int argc, char** argv) {
  halvane::HalvaneApplication application(argc, argv);
  // The end of the program is asked for, never a side effect of a window that closes.
  halvane::HalvaneApplication::setQuitOnLastWindowClosed(false);
  halvane::FrmHandMain window(halvane::MakeToolForm);
  window.show();
  application.WatchOverJob();
  return application.Run();
}

}  // namespace

int main(int argc, char** argv) {
  const int status = RunProgram(argc, argv);
  halvane::EndSignals::EndByThem();
  return status;
}
