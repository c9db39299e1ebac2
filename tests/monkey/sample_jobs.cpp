#include "tests/monkey/sample_jobs.h"

#include <array>

#include "core/job_file.h"
#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

constexpr int kPlainJobs = 12;
constexpr int kOddJobs = 24;
constexpr int kLongName = 40000;

constexpr std::array<const char*, 8> kNames{"",      "Line 4", "M. Ruiz", "包装线",
                                            "Größe", "a,b",    " blank ", "W7"};
constexpr std::array kNumbers{0.0, 1.0, 0.5, 8.0, 12.25, 60.0, 100.0, 480.0, 0.1, -3.0};
constexpr std::array kOddNumbers{1e308,  -1e308, 1e-310,   1e15,    123456789.123456,
                                 -0.001, 1e200,  3.333333, 40000.0, -32769.0};
constexpr std::array<const char*, 6> kOddTexts{"1e400", "abc", "7 of 9", "two\r\nlines", "-", "1E"};

double Number(Dice& dice) { return dice.Of(kNumbers); }

/// Fills the job in memory as a user could have.
void FillPlainJob(Dice& dice, int tasks) {
  Module1 = JobState{};
  Module1.JobAnalyst = dice.Of(kNames);
  Module1.JobName = dice.Of(kNames);
  Module1.JobWorkstationId = dice.Of(kNames);
  Module1.Hand = static_cast<Integer>(dice.Below(2));
  Module1.JobCycleTime = Number(dice);
  Module1.JobDurationPerDay = Number(dice);
  Module1.OcraRecoveryHours = static_cast<Integer>(dice.Below(11));
  for (int i = 0; i < 14; ++i) Module1.OcraComboChoice.at(i) = static_cast<Integer>(dice.Below(4));
  Module1.SiExertionMinutes = Number(dice);
  Module1.SiDutyObservationMinutes = Number(dice);
  Module1.SiExertionCount = Number(dice);
  Module1.SiEffortObservationMinutes = Number(dice);
  Module1.SiIntensityPick = static_cast<Integer>(dice.Below(15));
  Module1.SiPosturePick = static_cast<Integer>(dice.Below(20));
  Module1.SiSpeedPick = static_cast<Integer>(dice.Below(10));
  Module1.RulaControlState.at(0) = static_cast<Integer>(dice.Below(5));
  Module1.RulaControlState.at(12) = static_cast<Integer>(dice.Below(4));
  Module1.RebaControlState.at(4) = static_cast<Integer>(dice.Below(3));
  Module1.RebaControlState.at(17) = static_cast<Integer>(dice.Below(3));
  Module1.HalActivityLevel = static_cast<Integer>(dice.Below(11));
  Module1.HalDutyCycle = Number(dice);
  for (int i = 0; i < tasks; ++i) {
    const int task = AddTaskRecord();
    if (dice.OneIn(4)) Module1.TaskActive.at(task) = Integer{0};
    if (dice.OneIn(3)) Module1.TaskNames.at(task) = dice.Of(kNames);
    Module1.OcraTaskDuration.at(task) = Number(dice);
    Module1.OcraActionFrequency.at(task) = Number(dice);
    Module1.OcraForceRating.at(task) = dice.Below(11) / 2.0;
    Module1.CtdWorkTime.at(task) = Number(dice);
    Module1.CtdRepetitions.at(task) = Number(dice);
    Module1.CtdHandSpan.at(task) = Number(dice);
    Module1.CtdForceMvc.at(task) = Number(dice);
    Module1.CtdGripType.at(task) = static_cast<Integer>(dice.OneIn(2) ? 0 : 2 + dice.Below(3));
    Module1.CtdBackFlexion.at(task) = static_cast<Integer>(dice.Below(4));
    if (task <= kHighestTask) Module1.CtdLoadHeld.at(task, dice.Below(7)) = Number(dice);
  }
}

/// Puts one value that no user could have given into the job.
void SpoilJob(Dice& dice) {
  const auto task = static_cast<int>(Module1.TaskCount.AsDouble());
  const auto code = static_cast<Integer>(dice.Below(40) - 8);
  switch (dice.Below(17)) {
    case 0: Module1.Hand = 2; break;
    case 1: Module1.OcraComboChoice.at(dice.Below(14)) = code; break;
    case 2: Module1.SiIntensityPick = code; break;
    case 3: Module1.RulaControlState.at(dice.Below(20)) = code; break;
    case 4: Module1.RebaControlState.at(dice.Below(23)) = code; break;
    case 5: Module1.CtdGripType.at(task) = code; break;
    case 6: Module1.CtdNeckFlexion.at(task) = code; break;
    case 7: Module1.JobCycleTime = dice.Of(kOddNumbers); break;
    case 8: Module1.JobDurationPerDay = dice.Of(kOddTexts); break;
    case 9: Module1.CtdWorkTime.at(task) = dice.Of(kOddNumbers); break;
    case 10: Module1.CtdRepetitions.at(task) = dice.Of(kOddNumbers); break;
    case 11: Module1.OcraForceRating.at(task) = dice.Of(kOddNumbers); break;
    case 12: Module1.OcraRecoveryHours = dice.Of(kOddTexts); break;
    case 13: Module1.JobAnalyst = std::string(kLongName, 'n'); break;
    case 14: Module1.TaskNames.at(task) = dice.Of(kOddTexts); break;
    case 15: Module1.JobName = "says \"no\""; break;
    case 16: Module1.HalDutyCycle = dice.Of(kOddNumbers); break;
    default: break;
  }
}

std::string WithAnotherByte(std::string bytes, Dice& dice) {
  constexpr std::array kBytes{'"', ',', '\r', 'x', '9', '-', '\0', '\xE4'};
  if (dice.OneIn(3))
    bytes.resize(static_cast<std::size_t>(dice.Below(static_cast<int>(bytes.size()))));
  if (!bytes.empty()) dice.Of(bytes) = dice.Of(kBytes);
  return bytes;
}

}  // namespace

std::vector<SampleJob> MakeSampleJobs(const QString& folder, Dice& dice) {
  std::vector<SampleJob> jobs;
  const auto add = [&](const std::string& bytes, bool isOdd) {
    const QString path = QString("%1/sample %2.qjt").arg(folder).arg(jobs.size());
    WriteBytes(path.toStdString(), bytes);
    jobs.push_back({path, isOdd});
  };
  const JobState before = Module1;
  for (int i = 0; i < kPlainJobs; ++i) {
    FillPlainJob(dice, i % 4);
    add(JobFileBytes(Module1), false);
  }
  FillPlainJob(dice, kHighestTask);
  add(JobFileBytes(Module1), false);
  for (int i = 0; i < kOddJobs; ++i) {
    FillPlainJob(dice, 1 + dice.Below(2));
    SpoilJob(dice);
    add(JobFileBytes(Module1), true);
  }
  for (int i = 0; i < kOddJobs / 4; ++i) {
    FillPlainJob(dice, 1);
    add(WithAnotherByte(JobFileBytes(Module1), dice), true);
  }
  add("no job at all, but a text with enough of commas,,,,\r\n", true);
  add("", true);
  add(EmptyJobText("41"), true);
  jobs.push_back({folder + "/not there.qjt", true});
  jobs.push_back({folder, true});
  Module1 = before;
  return jobs;
}

}  // namespace halvane
