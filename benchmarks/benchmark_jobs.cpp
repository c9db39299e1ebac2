#include "benchmarks/benchmark_jobs.h"

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

#include "core/job_state.h"
#include "tools/reba/reba_controls.h"
#include "tools/rula/rula_controls.h"

namespace halvane {
namespace {

class Folder {
 public:
  Folder() {
    const std::string name = "halvane-benchmark-" + std::to_string(std::random_device()());
    path_ = std::filesystem::temp_directory_path() / name;
    std::filesystem::create_directories(path_);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

/// What is on the screen of one task differs from that of the next one.
void FillTask(int task, int number) {
  Module1.TaskNames.at(task) = "Task " + std::to_string(task) + ", turn and place";
  Module1.OcraActionFrequency.at(task) = 20.5 + task % 40;
  Module1.OcraTaskDuration.at(task) = 60.25 + (number + task) % 50;
  Module1.OcraForceRating.at(task) = 0.5 * (1 + (task + 3) % 10);
  Module1.CtdWorkTime.at(task) = 0.1;
  Module1.CtdRestTime.at(task) = 0.2;
  Module1.CtdHandSpan.at(task) = 6.5 + task % 5;
  Module1.CtdForceMvc.at(task) = 12.5 + task % 20;
  Module1.CtdRadUlnDeviation.at(task) = 2;
  Module1.CtdFlexExtDeviation.at(task) = Integer{5};
  Module1.CtdGripType.at(task) = static_cast<Integer>(2 + (task + 1) % 3);
  Module1.CtdLtShoulderFlexion.at(task) = Integer{1};
  Module1.CtdBackFlexion.at(task) = Integer{2};
  Module1.CtdNeckFlexion.at(task) = 1;
  Module1.CtdRepetitions.at(task) = 3 + task % 4;
  // The program has room for those of its highest task, and lists more.
  for (int slot = 0; slot < kPostureSlots && task <= kHighestTask; ++slot) {
    Module1.CtdLoadHeld.at(task, slot) = 1.25 * slot;
    Module1.CtdPostureDuration.at(task, slot) = 0.05 * slot;
  }
}

}  // namespace

void FillJob(int tasks, int number) {
  Module1 = JobState{};
  Module1.JobAnalyst = "A. Analyst";
  Module1.JobName = "Packing line " + std::to_string(number);
  Module1.JobWorkstationId = "P-" + std::to_string(number % 100);
  Module1.JobCycleTime = 0.5;
  // Whole per cents and whole counts a minute: between two bands there is no rating.
  Module1.SiExertionMinutes = 1.0 + number % 10;
  Module1.SiDutyObservationMinutes = Integer{20};
  Module1.SiExertionCount = 20.0 * (1 + number % 25);
  Module1.SiEffortObservationMinutes = 20;
  Module1.SiIntensityPick = Integer{5};
  Module1.SiPosturePick = Integer{11};
  Module1.SiSpeedPick = 6;
  // The last ribbon of each group and every tick.
  for (int control = 0; control < Module1.RulaControlState.size(); ++control) {
    const int highest = HighestState(kRulaControls, control);
    Module1.RulaControlState.at(control) = static_cast<Integer>(highest);
  }
  for (int control = 0; control < Module1.RebaControlState.size(); ++control) {
    const int highest = HighestState(kRebaControls, control);
    Module1.RebaControlState.at(control) = static_cast<Integer>(highest);
  }
  Module1.HalExertionFrequency = Integer{30};
  Module1.HalDutyCycle = Integer{60};
  Module1.HalActivityLevel = Integer{6};
  ResizeTaskArrays();
  for (int task = 1; task <= tasks; ++task) {
    Module1.TaskCount = static_cast<Integer>(task);
    NewTaskRecord();
    FillTask(task, number);
  }
}

const std::string& BenchmarkFolder() {
  static const Folder folder;
  static const std::string path = folder.path();
  return path;
}

}  // namespace halvane
