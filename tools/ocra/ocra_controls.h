#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/integer.h"
#include "tools/hand_controls.h"
#include "tools/number_field.h"
#include "tools/task_input.h"

namespace halvane {

/// The tabs, by index of `SSTab1`.
inline constexpr std::array<std::string_view, 3> kOcraTabs{"Repetitive Task Factors",
                                                           "Arm Posture Factors", "Estimated Risk"};
inline constexpr int kOcraReportTab = 2;

// Captions of frames that stand in no table below.
inline constexpr std::string_view kOcraJobCaption = "Job Information";
inline constexpr std::string_view kOcraHoursCaption = "Number Of Hours Without Adequate Recovery";
inline constexpr std::string_view kOcraForceCaption =
    "Rate Each Action According To The Following Force Level";
inline constexpr std::string_view kOcraTicksCaption = "Lack of variation:";
/// The tip of the force slider until it is moved, which is wanted.
inline constexpr std::string_view kOcraForceTip = " ";

/// The buttons under the task list.
inline constexpr std::array<TaskButton, 3> kOcraTaskButtons{
    {{"&Add Task", ""}, {"&Delete Task", ""}, {"&Edit Task", ""}}};

/// A frame with one box for a number.
struct OcraBox {
  std::string_view frameName;
  std::string_view caption;  ///< of the frame; trimmed, the name of the box
  int index;                 ///< of the box in its control array
  std::string_view unit;
  std::string_view unitName;
  NumberField field;
};
/// `Text2`.
inline constexpr OcraBox kOcraCycleTime{"SSFrame1(3)", "Job Cycle Time", 1,
                                        "min",         "Label1(5)",      &JobState::JobCycleTime};
/// `Text1`, for the task on screen. The blank behind the first caption is wanted.
inline constexpr std::array kOcraTaskBoxes{
    OcraBox{"SSFrame1(2)", "Task Duration ", 2, "total minutes per shift", "Label1(2)",
            &JobState::OcraTaskDuration},
    OcraBox{"SSFrame1(1)", "Action Frequency", 5, "no. of action per min", "Label2(5)",
            &JobState::OcraActionFrequency},
};
/// The row of `Text1(index)`. Throws `SubscriptOutOfRange` where there is none.
const OcraBox& OcraTaskBoxAt(int index);

/// The three frames of exposure lists, in the order of the screen.
enum class OcraRegion { Elbow, Wrist, Grip };

inline constexpr int kOcraListCount = 14;
/// The answer that scores nothing.
inline constexpr int kOcraNotApplicable = 3;
inline constexpr int kOcraNoPair = -1;

/// The four answers of every list; an answer's number is its place here.
inline constexpr std::array<std::string_view, 4> kOcraAnswers{
    "1/3 of cycle/task time", "2/3 of cycle/task time", "3/3 of cycle/task time", "Not Applicable"};

/// One exposure list. At most one of a pair is answered.
struct OcraList {
  OcraRegion region;
  std::string_view caption;
  std::array<Integer, 4> scores;  ///< by answer
  int pair;                       ///< index of the other list of the pair
  /// The sum that the scores go into; null: the list's own element of `OcraGripScores`.
  TaggedField JobState::*field;
};
/// A list stands at its index, which is that of `Combo1` and of `OcraComboChoice`.
extern const std::array<OcraList, kOcraListCount> kOcraLists;

/// One tick box; its field is 4 when ticked and 0 when not.
struct OcraTick {
  OcraRegion region;
  std::string_view caption;
  NumberField field;
};
inline constexpr Integer kOcraTicked = 4;
inline constexpr int kOcraTickCount = 5;
/// A box stands at its index of `SSCheck1`.
extern const std::array<OcraTick, kOcraTickCount> kOcraTicks;

/// A frame of exposure lists.
struct OcraFrame {
  OcraRegion region;
  std::string_view objectName;
  std::string_view caption;
  std::span<const int> lists;  ///< indexes of `Combo1`, in the order of the screen
  std::span<const int> ticks;  ///< indexes of `SSCheck1`
};
/// In the order of the screen, which is that of `OcraRegion`.
extern const std::array<OcraFrame, 3> kOcraFrames;

/// As many lists as the frame with the most has.
inline constexpr int kOcraMostLists = 6;

/// A mark of the force scale.
struct OcraForceMark {
  std::string_view tick;  ///< the number under the mark
  std::string_view word;  ///< the word under the number; empty where there is none
};
/// Both sliders run from 0 to this.
inline constexpr int kOcraSliderEnd = 10;
/// From 0 to 10, the value of the slider; the rating is half of it.
extern const std::array<OcraForceMark, 11> kOcraForceMarks;
/// The numbers under the slider of the hours without recovery.
inline constexpr std::array<std::string_view, kOcraSliderEnd + 1> kOcraHourMarks{
    "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};

/// The controls of the OCRA form without a screen: which two-state controls are set, and what their
/// events do to the job. A new object is the form as designed: right side, no box ticked.
class OcraControls : public HandControls {
 public:
  OcraControls() : HandControls(0) {}

  /// Puts every control back to its design state; runs no handler.
  void Reset() { *this = OcraControls(); }

  /// What the form's load does to the job, task list included. Throws `SubscriptOutOfRange` for a
  /// hand or an answer that names no control.
  void Load();

  /// The user, or the load, sets a box. One that is so already stays as it is.
  void SetTick(int index, bool ticked);
  /// The user picks an answer of a list. Its partner becomes "Not Applicable" when it is 0, 1 or 2.
  void PickAnswer(int list, int answer);

  [[nodiscard]] bool IsTicked(int index) const;

 private:
  std::array<bool, kOcraTickCount> ticked_{};
};

// What the sliders do to the job. Each marks it as changed.

/// The user moved the slider of the hours without recovery.
void OcraHoursMoved(int sliderValue);
/// The user moved the force slider, which rates the task on screen. Gives where it stands then: at
/// 0 while there is no task to rate.
int OcraForceMoved(int sliderValue);

/// Whether the job ever had a task, deleted ones counted.
bool OcraEverHadTasks();
/// Whether the frames of the task on screen are to be seen; nothing: a job that never had a task
/// leaves them as they were.
std::optional<bool> OcraShowsTaskFrames();

/// What stands beside the force slider at a position: "2.5".
std::string OcraRatingText(int sliderValue);
/// The force rating that a slider position from 0 to 10 stands for.
double OcraRatingAt(int sliderValue);
/// Where the force slider stands for a rating; the nearest end for one beyond the scale.
int OcraSliderAt(double rating);
/// Where the recovery slider stands; the nearest end for hours beyond 0 to 10.
int OcraRecoverySliderAt(double hours);

}  // namespace halvane
