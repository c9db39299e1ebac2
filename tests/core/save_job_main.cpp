#include <unistd.h>

#include <cstdio>
#include <string>

#include "core/job_file.h"
#include "core/runtime_failure.h"

/// Opens the job file SOURCE and saves it under TARGET with another analyst, for the test that lets
/// each system call of a save fail: save_job SOURCE TARGET ANALYST.
int main(int argumentCount, char** arguments) {
  using namespace halvane;
  if (argumentCount != 4) return 2;
  try {
    Module1.JobFileName = arguments[1];
    if (OpenJobFile() != OpenOutcome::Opened) return 2;
    Module1.JobFileName = arguments[2];
    Module1.JobAnalyst = arguments[3];
    // A call that nothing else makes: in a trace, the save starts behind it.
    (void)getppid();
    WriteJobFile();
  } catch (const RuntimeFailure& failure) {
    std::fprintf(stderr, "%s\n", std::string(KindName(failure.kind())).c_str());
    return 1;
  }
  return 0;
}
