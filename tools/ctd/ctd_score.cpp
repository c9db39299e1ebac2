#include "tools/ctd/ctd_score.h"

#include <cmath>
#include <optional>

#include "core/checked_math.h"
#include "core/job_state.h"
#include "core/units.h"
#include "tools/ctd/ctd_input.h"

namespace halvane {
namespace {

/// Stands for a cycle time, work time, rest time or shift of 0. A value really typed so is wiped
/// when the guard is undone, which is wanted: the test is on the value.
constexpr double kGuard = 0.01;
/// Stands for a remaining time or an allowable force of 0.
constexpr double kSmallGuard = 0.001;

constexpr double kPoundsPerKilogram = 2.2;
constexpr double kNoCapacityScore = 150;
constexpr double kNeutralCapacity = 100;
constexpr double kNeutralScore = 0.5;

struct StrengthRow {
  double pronation, neutral, supination;  // power grip, by wrist position
  double lateralPinch, chuckPinch, twoPointPinch;
};
// Rows: three classes of radial/ulnar deviation (neutral, 5-15, over 15 degrees) by three classes
// of flexion/extension (neutral, 5-15, over 35 degrees).
// clang-format off
constexpr std::array<std::array<StrengthRow, 3>, 3> kStrength{{
    {{{77.9, 97.4, 85.9,   95.6, 79.0, 48.9},      // neutral, neutral
      {77.6, 97.3, 84.7,   95.6, 78.3, 48.6},      // neutral, 5-15
      {69.4, 81.7, 65.9,   89.3, 64.4, 41.2}}},    // neutral, over 35
    {{{78.3, 98.3, 87.2,   95.3, 78.6, 47.9},      // 5-15, neutral
      {58.7, 71.2, 65.1,   84.5, 63.0, 41.9},      // 5-15, 5-15
      {55.1, 69.6, 61.1,   82.3, 60.7, 40.3}}},    // 5-15, over 35
    {{{76.1, 96.2, 84.8,   93.0, 75.7, 44.6},      // over 15, neutral
      {58.3, 70.9, 64.1,   83.5, 59.9, 41.1},      // over 15, 5-15
      {54.8, 69.2, 60.1,   81.3, 57.5, 39.5}}},    // over 15, over 35
}};
// clang-format on

/// Row class of a code; nothing for a code that is none.
std::optional<std::size_t> RadialUlnarClass(double code) {
  if (code == 0) return 0;
  if (code == 2 || code == 4) return 1;
  if (code == 1 || code == 3) return 2;
  return std::nullopt;
}

std::optional<std::size_t> FlexionExtensionClass(double code) {
  if (code == 0) return 0;
  if (code == 6 || code == 8) return 1;
  if (code == 5 || code == 7) return 2;
  return std::nullopt;
}

double PowerGripStrength(const StrengthRow& row, int wrist) {
  switch (wrist) {
    case 0:
    case 2: return row.neutral;
    case 1: return row.pronation;
    case 3: return row.supination;
    default: return 0;
  }
}

/// `base` to the power of `exponent`. Throws `InvalidCall` where there is no real result.
double Power(double base, double exponent) {
  if (base < 0) throw RuntimeFailure(FailureKind::InvalidCall);
  if (base == 0 && exponent < 0) throw RuntimeFailure(FailureKind::DivisionByZero);
  return Finite(std::pow(base, exponent));
}

/// What a category does to the capacity of its joint.
double CategoryMultiplier(int slot, double category) {
  if (slot == kCtdNeckSlot) return 1;
  // Elbows take the number itself, so that their second category doubles the capacity; it is
  // wanted.
  if (slot == 4 || slot == 5) return category;
  if (category == 1) return 1;
  if (category == 2) return 0.5;
  if (category == 3) return 0.25;
  return 0;
}

/// The load on the neck is not typed; it comes from the category.
double NeckBase(double category) {
  if (category == 1) return 0.125;
  if (category == 2) return 0.175;
  if (category == 3) return 0.2;
  return 0;
}

double LoadBase(const JobState& job, int slot, int task, double category) {
  if (slot == kCtdNeckSlot) return NeckBase(category);
  return Finite((job.CtdLoadHeld.at(task, slot) * kPoundsPerKilogram + 5) / 50);
}

double ShiftMinutes() { return Product(Module1.JobDurationPerDay.AsDouble(), kMinutesPerHour); }

/// What the strain on a slot comes from. `shift`: what the length of the shift does to it.
struct Strain {
  double load;
  double held;
  double remaining;
  double shift;

  /// Whether it is known to be a number without working it out, which takes several powers.
  [[nodiscard]] bool isUsual() const {
    constexpr double kLeast = 1e-50;
    constexpr double kMost = 1e50;
    return load >= 0 && load <= kMost && held >= 0 && held <= kMost && remaining >= kLeast &&
           shift <= kMost;
  }
  [[nodiscard]] double Value() const {
    double strain = 1.099646;
    for (const double factor :
         {Power(load, 1.862633), Power(held, 0.733872), Power(remaining, -0.412773), shift}) {
      strain = Product(strain, factor);
    }
    return strain;
  }
};

/// Capacity and score of one slot.
void ScoreSlot(JobState& job, int slot, int task, double shift) {
  const double category = CtdCategoryOf(slot, task);
  const double held = job.CtdPostureDuration.at(task, slot);
  double remaining = job.JobCycleTime - held;
  if (remaining <= 0) remaining = kSmallGuard;
  const Strain strain{LoadBase(job, slot, task, category), held, remaining, shift};

  TaggedField& slotCapacity = job.CtdPostureCapacity.at(slot);
  TaggedField& slotScore = job.CtdPostureScore.at(slot);
  // A neutral posture is rated whatever its strain, as long as that is a number.
  if (category != 0 || !strain.isUsual()) {
    const double capacity = Finite((1 - strain.Value()) * 100 * CategoryMultiplier(slot, category));
    slotCapacity = capacity <= 0 ? 0.0 : capacity;
    slotScore = capacity <= 0 ? kNoCapacityScore : Finite(50 / capacity);
  }
  if (category == 0) {
    slotCapacity = kNeutralCapacity;
    slotScore = kNeutralScore;
  }
}

void ScorePostures(int task) {
  // Looked up once: each thread has a job of its own.
  JobState& job = Module1;
  double& score = job.CtdTaskPostureScore.at(task);
  score = 0;
  const double shift = Power(ShiftMinutes(), 0.48053);
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    ScoreSlot(job, slot, task, shift);
    score = Finite(score + job.CtdPostureScore.at(slot).AsDouble());
  }
  score /= kCtdSlotCount;
}

/// The force that may be asked for, in per cent, by work time, rest time and length of the shift.
double AllowableForce(double workTime, double restTime) {
  double allowable = 0.950282;
  for (const double factor : {Power(workTime, -0.393997), Power(restTime, 0.224607), 0.475, 100.0,
                              Power(ShiftMinutes(), -0.257984)}) {
    allowable = Product(allowable, factor);
  }
  return allowable == 0 ? kSmallGuard : allowable;
}

/// Repetitions of the task, weighted by how far the force exceeds the allowable one.
void AdjustRepetitions(int task, double spanCentimetres, double& adjusted) {
  const double repetitions = Module1.CtdRepetitions.at(task);
  const double strength =
      Quotient(Product(CtdRelativeStrength(Module1.CtdGripType.at(task).AsDouble(),
                                           Module1.CtdWristPosition.at(task),
                                           Module1.CtdRadUlnDeviation.at(task),
                                           Module1.CtdFlexExtDeviation.at(task).AsDouble()),
                       CtdSpanStrength(Module1.CtdGripType.at(task).AsDouble(), spanCentimetres)),
               100);
  double rest =
      Finite(Module1.JobCycleTime - Product(Module1.CtdWorkTime.at(task).AsDouble(), repetitions));
  if (rest <= 0) rest = kGuard;
  const double required = Quotient(Product(Module1.CtdForceMvc.at(task), 100), strength);

  // The guards go into the fields themselves and hold until the task is done.
  if (Module1.CtdWorkTime.at(task).AsDouble() <= 0) Module1.CtdWorkTime.at(task) = kGuard;
  if (Module1.JobDurationPerDay.AsDouble() <= 0) Module1.JobDurationPerDay = kGuard;
  if (Module1.JobCycleTime <= 0) Module1.JobCycleTime = kGuard;

  const double ratio =
      Quotient(required, AllowableForce(Module1.CtdWorkTime.at(task).AsDouble(), rest));
  if (ratio > 1) adjusted = Product(ratio, repetitions);
  if (ratio < 1) adjusted = repetitions;
  // A ratio of exactly 1 keeps the count of the previous task, which is wanted.
}

void UndoGuards(int task) {
  if (Module1.CtdWorkTime.at(task).AsDouble() == kGuard) Module1.CtdWorkTime.at(task) = 0.0;
  if (Module1.JobDurationPerDay.AsDouble() == kGuard) Module1.JobDurationPerDay = 0.0;
  if (Module1.JobCycleTime == kGuard) Module1.JobCycleTime = 0;
}

void CountCycles() {
  if (Module1.JobCycleTime == 0) Module1.JobCycleTime = kGuard;
  Module1.CtdCyclesPerShift = Quotient(ShiftMinutes(), Module1.JobCycleTime);
  if (Module1.JobCycleTime == kGuard) Module1.JobCycleTime = 0;
}

}  // namespace

double CtdRelativeStrength(double grip, int wrist, double radialUlnar, double flexionExtension) {
  const auto deviation = RadialUlnarClass(radialUlnar);
  const auto flexion = FlexionExtensionClass(flexionExtension);
  if (!deviation || !flexion) return 0;
  const StrengthRow& row = kStrength[*deviation][*flexion];
  if (grip == 0) return PowerGripStrength(row, wrist);
  if (grip == 2) return row.lateralPinch;
  if (grip == 3) return row.chuckPinch;
  if (grip == 4) return row.twoPointPinch;
  return 0;
}

double CtdSpanStrength(double grip, double centimetres) {
  const double x = centimetres;
  if (grip == 0) return Finite(14.4 - 3.6186 * x + 4.6865 * x * x - 0.3624 * x * x * x);
  if (grip == 2) return Finite(97.594 + 3.0288 * x - 0.8308 * x * x);
  if (grip == 3) return Finite(100.22 - 0.7093 * x - 0.2363 * x * x);
  if (grip == 4) return Finite(99.219 + 1.6383 * x - 0.3931 * x * x);
  return 0;
}

void CTDcalculate() {
  Module1.CtdForceFrequencyFactor = 0;
  Module1.CtdPostureFactor = 0;
  Module1.CtdPostureFactorTask = 1;
  CountCycles();

  // In metric jobs the span never reaches the model and stays 0, which is wanted.
  double spanCentimetres = 0;
  double adjusted = 0;
  const double taskCount = Module1.TaskCount.AsDouble();
  for (int task = 1; task <= taskCount; ++task) {
    if (Module1.Units == static_cast<Integer>(LengthUnit::English)) {
      spanCentimetres = Product(Module1.CtdHandSpan.at(task).AsDouble(), kCentimetresPerInch);
    }
    if (Module1.TaskActive.at(task).AsDouble() != 1) continue;
    ComputeCtdRestTime(task);
    AdjustRepetitions(task, spanCentimetres, adjusted);
    ScorePostures(task);
    UndoGuards(task);
    const double score = Module1.CtdTaskPostureScore.at(task);
    // A tie goes to the later task.
    if (Module1.CtdPostureFactor <= score) {
      Module1.CtdPostureFactor = score;
      Module1.CtdPostureFactorTask = static_cast<Integer>(task);
    }
    Module1.CtdForceFrequencyFactor = Finite(Module1.CtdForceFrequencyFactor + adjusted);
  }

  Module1.CtdForceFrequencyFactor =
      Product(Module1.CtdForceFrequencyFactor, Module1.CtdCyclesPerShift) / 10000;
  const double grand =
      Finite(Module1.CtdPostureFactor * 3.18 + Module1.CtdForceFrequencyFactor * 2.004);
  Module1.CtdGrandScore = grand < 0 ? 0.0 : grand;
}

std::vector<WorkingValue> CtdWorkingValues() {
  return {
      {"CtdCyclesPerShift", Module1.CtdCyclesPerShift, "cycles a shift", "job cycles in a shift"},
      {"CtdPostureFactor", Module1.CtdPostureFactor, "", "highest mean posture score of a task"},
      {"CtdPostureFactorTask", Module1.CtdPostureFactorTask, "",
       "number of the task that gave it, 1 for no task"},
      {"CtdForceFrequencyFactor", Module1.CtdForceFrequencyFactor, "",
       "force and repetitions of all tasks, over the shift"},
      {"CtdGrandScore", Module1.CtdGrandScore, "cases per 200,000 hours",
       "predicted incidence rate"},
      {"CtdTaskPostureScore", Elements(Module1.CtdTaskPostureScore), "",
       "mean posture score, by task"},
      {"CtdRestTime", Elements(Module1.CtdRestTime), "minutes",
       "rest in a cycle, by task; of a task that does not exist as it stands in the file"},
      {"CtdPostureCapacity", Elements(Module1.CtdPostureCapacity), "per cent",
       "capacity left in each of the eight posture slots, of the task computed last"},
      {"CtdPostureScore", Elements(Module1.CtdPostureScore), "",
       "score of each of the eight posture slots, of the task computed last"},
  };
}

}  // namespace halvane
