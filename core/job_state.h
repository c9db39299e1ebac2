#pragma once

#include <string>

#include "core/checked_array.h"
#include "core/integer.h"
#include "core/tagged_field.h"

namespace halvane {

/// The highest task number that a job can store.
inline constexpr int kHighestTask = 40;
/// Posture slots of a task, one a body joint and side; see `CtdLoadHeld`.
inline constexpr int kPostureSlots = 8;

/// The data dictionary of the program: the one job in memory and the working values of the tools.
/// Every form and computation reads and writes `Module1`; there is no other copy. `JobState{}` is a
/// freshly started program with its empty job.
///
/// A comment gives unit, range and the default of an empty job where it is not 0 or empty. Fields
/// with no other word are saved in the job file.
struct JobState {
  // The job itself.
  std::string JobFileName;    ///< path; empty: never saved or opened; not saved
  Integer JobDirty = kFalse;  ///< -1: unsaved changes; survives `JobReset`; not saved
  /// A save or an open that failed has marked the job as saved, so that no whole file holds it; see
  /// `NeedsRescue`. Not saved.
  bool JobInNoFile = false;
  TaggedField JobAnalyst = "";  ///< text
  TaggedField JobName = "";     ///< text
  std::string JobWorkstationId;
  Integer Hand = 0;                            ///< 0 right side, 1 left side; a label only
  double JobCycleTime = 0;                     ///< minutes
  TaggedField JobDurationPerDay = Integer{8};  ///< hours worked per shift; default 8
  Integer JobFileFlag = 0;                     ///< carried through the file; survives `JobReset`
  Integer Units = 0;  ///< 0 metric, 1 English; survives `JobReset`; not saved

  // The task list, shared by the OCRA and CTD tools. Tasks are numbered from 1.
  TaggedField TaskCount = Integer{0};  ///< highest task number ever made in this job
  TaggedField CurrentTask;             ///< task on screen; survives `JobReset`; not saved
  TaskArray<std::string> TaskNames;
  TaskArray<TaggedField> TaskActive;  ///< 1 the task exists, 0 it was deleted
  TaskArray<double> TaskSpare;        ///< carried through the file; no tool uses it

  // OCRA, one value a job.
  TaggedField OcraRecoveryHours = Integer{0};  ///< hours without adequate recovery, 0 to 10
  TaggedField OcraWristActions = Integer{0};   ///< ticked 4, else 0; so the next four
  Integer OcraWristHold = 0;
  TaggedField OcraSameFingers = Integer{0};
  Integer OcraHoldObject = 0;
  Integer OcraElbowGesture = 0;
  FixedArray<Integer, 14> OcraComboChoice =
      AllThree();  ///< answers 0 to 3; default 3, not applicable

  // OCRA, one value a task.
  TaskArray<TaggedField> OcraActionFrequency;  ///< actions a minute
  TaskArray<double> OcraTaskDuration;          ///< minutes a shift
  TaskArray<double> OcraForceRating;           ///< Borg scale, 0 to 5 in halves

  // CTD Risk Index, one value a task.
  TaskArray<TaggedField> CtdWorkTime;  ///< minutes a cycle
  TaskArray<TaggedField> CtdRestTime;  ///< minutes a cycle; computed
  TaskArray<TaggedField> CtdHandSpan;  ///< centimetres or inches, by `Units`
  TaskArray<TaggedField> CtdGripType;
  TaskArray<Integer> CtdWristPosition;
  TaskArray<TaggedField> CtdFlexExtDeviation;
  TaskArray<double> CtdRadUlnDeviation;
  TaskArray<double> CtdForceMvc;                ///< per cent of the maximal voluntary contraction
  TaskArray<TaggedField> CtdLtShoulderFlexion;  ///< posture categories; empty in a new task
  TaskArray<TaggedField> CtdRtShoulderFlexion;
  TaskArray<TaggedField> CtdLtShoulderAbduction;
  TaskArray<TaggedField> CtdRtShoulderAbduction;
  TaskArray<TaggedField> CtdLtElbowFlexion;
  TaskArray<TaggedField> CtdRtElbowFlexion;
  TaskArray<TaggedField> CtdBackFlexion;
  TaskArray<Integer> CtdNeckFlexion;
  TaskArray<double> CtdRepetitions;                                       ///< repetitions a cycle
  FixedGrid<double, kHighestTask + 1, kPostureSlots> CtdLoadHeld;         ///< kilograms
  FixedGrid<double, kHighestTask + 1, kPostureSlots> CtdPostureDuration;  ///< minutes

  // Strain Index.
  TaggedField SiExertionMinutes = Integer{0};         ///< duration of all exertions, minutes
  TaggedField SiDutyObservationMinutes = Integer{0};  ///< observation time for the above, minutes
  TaggedField SiExertionCount = Integer{0};           ///< number of exertions
  double SiEffortObservationMinutes = 0;              ///< observation time for the count, minutes
  TaggedField SiIntensityPick = Integer{0};           ///< ribbon 0 to 14
  TaggedField SiPosturePick = Integer{0};             ///< ribbon 0 to 19
  Integer SiSpeedPick = 0;                            ///< ribbon 0 to 9

  // RULA and REBA: what is set on each control.
  FixedArray<Integer, 20> RulaControlState;
  FixedArray<Integer, 23> RebaControlState;

  // Hand Activity Level.
  TaggedField HalExertionFrequency = Integer{0};  ///< exertions a minute
  TaggedField HalDutyCycle = Integer{0};          ///< per cent of the cycle time
  TaggedField HalForceRating = Integer{0};        ///< 0 to 10; no control asks for it
  TaggedField HalActivityLevel = Integer{0};      ///< 0 to 10

  // Working values: neither saved nor reset by `JobReset`; they live as long as the program runs.

  /// The job file stands open after a failure: every later open fails with `FileAlreadyOpen`.
  bool JobFileOpen = false;

  // OCRA. The three multipliers that a lookup may miss keep the value of the last computation.
  FixedArray<TaggedField, 6> OcraGripScores;  ///< lists 0 to 5; element 5 is widened in place
  TaggedField OcraElbowRotation;              ///< sums of list scores
  TaggedField OcraElbowFlexion;
  TaggedField OcraWristDeviation;
  TaggedField OcraWristFlexion;
  FixedArray<Integer, 4> OcraPostureSums;  ///< 1 elbow, 2 wrist, 3 grip; slot 0 stays 0
  TaggedField OcraRegionMultiplier;        ///< of the region looked at last
  TaggedField OcraPostureMultiplier;       ///< the smallest of the three regions
  TaggedField OcraGripExtraMultiplier;
  double OcraRecoveryMultiplier = 0;
  TaskArray<TaggedField> OcraForceMultiplier;  ///< by task; resized with the task list
  TaggedField OcraActionsObserved;             ///< actions a shift
  TaggedField OcraActionsRecommended;          ///< actions a shift
  double OcraRiskIndex = 0;

  // CTD Risk Index.
  double CtdCyclesPerShift = 0;
  double CtdPostureFactor = 0;       ///< highest mean posture score of a task
  Integer CtdPostureFactorTask = 0;  ///< the task that gave it
  double CtdForceFrequencyFactor = 0;
  TaggedField CtdGrandScore;                      ///< predicted incidence per 200,000 worked hours
  TaskArray<double> CtdTaskPostureScore;          ///< by task; resized with the task list
  FixedArray<TaggedField, 8> CtdPostureCapacity;  ///< per cent, of the last task computed
  FixedArray<TaggedField, 8> CtdPostureScore;     ///< of the last task computed

  Integer SiIntensityRating = 0;  ///< 1 to 5; 0 until the form has loaded
  Integer SiPostureRating = 0;    ///< 1 to 5; 0 until the form has loaded
  Integer SiSpeedRating = 0;      ///< 1 to 5; 0 until the form has loaded
  double SiDutyCyclePercent = 0;  ///< exertion in per cent of the observation
  Integer SiDutyRating = 0;       ///< 1 to 5; a value in a gap keeps the last one
  double SiEffortsPerMinute = 0;
  Integer SiEffortsRating = 0;   ///< 1 to 5; a value in a gap keeps the last one
  Integer SiDurationRating = 0;  ///< 1 to 5
  double SiStrainIndexScore = 0;

  // RULA factors: what each control adds. The arrays are cleared by `ReadJobFile` and by nothing
  // else, the single ones by nothing.
  FixedArray<Integer, 4> RulaUpperArmFactors;  ///< 0 base, 1 raised, 2 abducted, 3 supported
  FixedArray<Integer, 2> RulaLowerArmFactors;  ///< 0 base, 1 across the midline
  FixedArray<Integer, 2> RulaWristFactors;     ///< 0 base, 1 bent sideways
  FixedArray<Integer, 3> RulaNeckFactors;      ///< 0 base, 1 twisting, 2 bending sideways
  FixedArray<Integer, 4> RulaTrunkFactors;     ///< 0 base, 1 twisting, 2 side bend, 3 not supported
  Integer RulaWristTwistFactor = 0;            ///< 1 or 2; 0 until the form has loaded
  Integer RulaLegFactor = 0;                   ///< 1 or 2; 0 until the form has loaded
  Integer RulaMuscleFactor = 0;                ///< 0 to 2
  Integer RulaForceFactor = 0;                 ///< 0 to 3

  // RULA scores, of the last computation.
  Integer RulaUpperArmScore = 0;
  Integer RulaLowerArmScore = 0;
  Integer RulaWristScore = 0;
  Integer RulaWristTwistScore = 0;
  Integer RulaNeckScore = 0;
  Integer RulaTrunkScore = 0;
  Integer RulaLegScore = 0;
  Integer RulaMuscleScore = 0;
  Integer RulaForceScore = 0;
  Integer RulaArmWristPosture = 0;
  Integer RulaNeckTrunkLegPosture = 0;
  Integer RulaArmWristTotal = 0;
  Integer RulaNeckTrunkLegTotal = 0;
  Integer RulaGrandScore = 0;

  // REBA. The factor arrays stand below; a single factor keeps its value until its control stores
  // another.
  Integer RebaLowerArmFactor = 0;  ///< 1 or 2; 0 until the form has loaded
  Integer RebaCouplingFactor = 0;  ///< 0 to 3
  Integer RebaActivityFactor = 0;  ///< 0 to 3; survives the opening of a job without muscle use
  Integer RebaUpperArmScore = 0;   ///< 0 to 6
  Integer RebaLowerArmScore = 0;   ///< 1 or 2
  Integer RebaWristScore = 0;      ///< 1 to 3
  Integer RebaNeckScore = 0;       ///< 1 to 3
  Integer RebaTrunkScore = 0;      ///< 1 to 5
  Integer RebaLegScore = 0;        ///< 1 to 4
  Integer RebaActivityScore = 0;   ///< 0 to 3
  Integer RebaForceScore = 0;      ///< 0 to 3
  Integer RebaCouplingScore = 0;   ///< 0 to 3
  Integer RebaScoreA = 0;          ///< of trunk, neck and legs, 1 to 9
  Integer RebaScoreB = 0;          ///< of upper arm, lower arm and wrist, 0 to 9
  Integer RebaScoreATotal = 0;     ///< with the force, 1 to 12
  Integer RebaScoreBTotal = 0;     ///< with the coupling, 0 to 12
  Integer RebaGrandScore = 0;      ///< 0 to 15

  // REBA factors: cleared by `ReadJobFile` and by nothing else.
  FixedArray<Integer, 4> RebaUpperArmFactors;
  FixedArray<Integer, 2> RebaWristFactors;
  FixedArray<Integer, 3> RebaNeckFactors;
  FixedArray<Integer, 3> RebaTrunkFactors;
  FixedArray<Integer, 2> RebaLegFactors;
  FixedArray<Integer, 2> RebaForceFactors;

  // Hand Activity Level.
  Integer HalForceMode =
      kFalse;  ///< -1 limits of the level, 0 of the force; 0 until the form loads
  FixedArray<double, 2> HalLimits;  ///< 0 Threshold Limit Value, 1 Action Level; of the last one

  bool operator==(const JobState&) const = default;

 private:
  static FixedArray<Integer, 14> AllThree();
};

/// The one instance. A program that computes in several threads has one in each of them; that of
/// the thread that starts the program lives until its very end, so that what is registered for the
/// end can still save it.
extern thread_local JobState& Module1;

/// Makes the job the empty job. `JobDirty`, `Units`, `CurrentTask`, `JobFileFlag` and all working
/// values stay, so a job that was changed still counts as changed.
void JobReset();

/// Gives every per-task array the bounds 0 to `TaskCount`, rounded half to even, and discards their
/// contents; clears loads and durations of tasks 1 to 40. Throws `SubscriptOutOfRange` for a count
/// below 0 and `Overflow` for one above 32767, with nothing changed.
void ResizeTaskArrays();

/// Grows every per-task array to `TaskCount`, which the caller has raised by one, and fills the new
/// last slot. Throws as `ResizeTaskArrays` does.
void NewTaskRecord();

}  // namespace halvane
