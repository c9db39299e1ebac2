#include "benchmarks/action.h"
#include "benchmarks/benchmark_jobs.h"
#include "benchmarks/cpu_seconds.h"
#include "benchmarks/opened_tool.h"
#include "core/job_state.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kTurns = 21;

/// Goes from a job with tasks, as saved, to an empty one and back.
class NewJobs {
 public:
  void Go(ToolForm& form) {
    if (isNew_) PrintSample("new", CpuSeconds() - start_);
    isNew_ = !isNew_;
    if (turns_++ == 2 * kTurns) {
      form.close();
    } else if (isNew_) {
      // Loads of some tools mark the job, and then New asks first.
      Module1.JobDirty = kFalse;
      start_ = CpuSeconds();
      form.mnuFileNew_Click();
    } else {
      FillJob(kTasks, 1);
      form.done(ToolForm::Reload);
    }
  }

 private:
  bool isNew_ = false;
  double start_ = 0;
  int turns_ = 0;
};

void Measure(Tool tool, const std::string& /*argument*/) {
  OpenedTool opened(kTasks);
  NewJobs jobs;
  opened.OpenFor(tool, [&jobs](ToolForm& form) { jobs.Go(form); });
}

}  // namespace
}  // namespace halvane

/// new_job TOOL: from New on the tool to the painted tool with an empty job.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
