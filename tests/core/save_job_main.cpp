#include <sys/syscall.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/job_file.h"
#include "core/runtime_failure.h"

namespace {

/// Which write of this program is to be a short one, counted from 1; 0 for none.
int shortWrite = 0;

}  // namespace

/// Takes the place of the system's own, since no tracer can make a write really be a short one.
extern "C" ssize_t write(int descriptor, const void* bytes, std::size_t size) {
  if (shortWrite > 0 && --shortWrite == 0) size /= 2;
  return syscall(SYS_write, descriptor, bytes, size);
}

namespace halvane {
namespace {

int Save(const char* source, const char* target, const char* analyst) {
  try {
    Module1.JobFileName = source;
    if (OpenJobFile() != OpenOutcome::Opened) return 2;
    Module1.JobFileName = target;
    Module1.JobAnalyst = analyst;
    if (const char* number = std::getenv("HALVANE_SHORT_WRITE")) shortWrite = number[0] - '0';
    // A call that nothing else makes: in a trace, the save starts behind it.
    (void)getppid();
    WriteJobFile();
  } catch (const RuntimeFailure& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
  return 0;
}

}  // namespace
}  // namespace halvane

/// Opens the job file SOURCE and saves it under TARGET with another analyst, for the test that lets
/// each system call of a save fail: save_job SOURCE TARGET ANALYST.
int main(int argumentCount, char** arguments) {
  if (argumentCount != 4) return 2;
  // The program ends here, since what a build that measures coverage writes at the end is no part
  // of the save and would be cut short by a kill.
  _exit(halvane::Save(arguments[1], arguments[2], arguments[3]));
}
