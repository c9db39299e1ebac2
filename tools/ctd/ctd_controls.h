#pragma once

#include <array>
#include <functional>
#include <span>
#include <string_view>

#include "core/job_state.h"
#include "tools/hand_controls.h"
#include "tools/number_field.h"
#include "tools/task_input.h"

namespace halvane {

/// The tabs, by index of `SSTab1`.
inline constexpr std::array<std::string_view, 3> kCtdTabs{"Force Freq. Factors",
                                                          "Body Posture Factors", "Grand Score"};
inline constexpr int kCtdReportTab = 2;

/// The buttons under the task list.
inline constexpr std::array<TaskButton, 3> kCtdTaskButtons{
    {{"&Add", "Add Task"}, {"&Delete", "Delete Task"}, {"&Edit", "Edit Task"}}};

// Captions of the frames with boxes for numbers.
inline constexpr std::string_view kCtdJobCaption = "Job Duration";
inline constexpr std::string_view kCtdTaskCaption = "Task Duration (per Cycle Time)";
inline constexpr std::string_view kCtdRepetitionCaption = "Repetition";
inline constexpr std::string_view kCtdStrengthCaption = "Strength Data:";
inline constexpr std::string_view kCtdSpanCaption = "Hand Span";
/// What to do while no posture frame is shown.
inline constexpr std::string_view kCtdChoosePart = "Choose a body part";

/// A box for a number: its index in its control array, its label and its field.
struct CtdBox {
  int index;
  std::string_view label;
  NumberField field;
  bool isComputed = false;  ///< not typed
};
/// `Text1`, for the task on screen; the names of the job stand in the others.
inline constexpr std::array kCtdText1{
    CtdBox{2, "Work Time (min):", &JobState::CtdWorkTime},
    CtdBox{3, "Rest Time (min):", &JobState::CtdRestTime, true},
    CtdBox{5, "No. Of Rep.", &JobState::CtdRepetitions},
    CtdBox{6, kCtdSpanCaption, &JobState::CtdHandSpan},
};
/// `Text2`, for the job.
inline constexpr std::array kCtdText2{
    CtdBox{0, "Hours Worked per Shift:", &JobState::JobDurationPerDay},
    CtdBox{1, "Job Cycle Time (min):", &JobState::JobCycleTime},
    CtdBox{2, "No. Of Cycles:", &JobState::CtdCyclesPerShift, true},
};
/// `Text5`, for the task on screen; no element of an array.
inline constexpr CtdBox kCtdText5{0, "MVC % Required:", &JobState::CtdForceMvc};
/// The row of an index. Throws `SubscriptOutOfRange` where there is none.
const CtdBox& CtdBoxAt(std::span<const CtdBox> boxes, int index);

/// A box for a number in each posture frame, for slot and task.
struct CtdSlotBox {
  std::string_view objectName;  ///< without the slot
  std::string_view caption;
  std::string_view unit;
  FixedGrid<double, kHighestTask + 1, kPostureSlots> JobState::*field;
};
inline constexpr CtdSlotBox kCtdLoad{"Text3", "Load Held", "kg", &JobState::CtdLoadHeld};
inline constexpr CtdSlotBox kCtdDuration{"Text4", "Duration Posture Held", "min",
                                         &JobState::CtdPostureDuration};

/// A picture ribbon: its index, which is the code that the job stores, and its caption. The gaps in
/// the indexes are part of the codes.
struct CtdRibbon {
  int index;
  std::string_view caption;  ///< its tool tip and the report's wording too
  std::string_view picture;  ///< asset name
};

/// The four ribbon groups of hand and wrist.
enum class CtdGroup { Grip, Wrist, RadialUlnar, FlexionExtension };

struct CtdGroupRow {
  CtdGroup group;
  std::string_view objectName;  ///< of the ribbons, without the index
  std::string_view caption;     ///< of the frame
  std::span<const CtdRibbon> ribbons;
  NumberField field;  ///< of the code, one a task
};
/// In the order of the screen, which is that of `CtdGroup`.
extern const std::array<CtdGroupRow, 4> kCtdGroups;

inline constexpr int kCtdSlotCount = kPostureSlots;
/// The neck carries no load.
inline constexpr int kCtdNeckSlot = 7;

/// One posture slot of a task: a joint and side with its category, load and duration.
struct CtdSlot {
  std::string_view reportLabel;
  std::string_view frameCaption;
  std::string_view objectName;  ///< of the category's ribbons
  std::span<const CtdRibbon> categories;
  NumberField field;  ///< of the category, one a task
  /// The slot whose load and duration stand in this slot's frame. The two shoulder pairs are
  /// crossed: the frame of a side shows its own category beside the load and duration of the other,
  /// while the computation joins them by slot number. It is wanted.
  int frameSlot;
};
/// A slot stands at its number.
extern const std::array<CtdSlot, kCtdSlotCount> kCtdSlots;

/// A ribbon of the body-part selector and the two slots whose frames it shows, left side of the
/// screen first.
struct CtdBodyPart {
  std::string_view caption;
  std::string_view picture;
  std::array<int, 2> shownSlots;
};
/// A part stands at its index of `SSRibbon3`.
extern const std::array<CtdBodyPart, 4> kCtdBodyParts;

/// The ribbon of `ribbons` with this index. Throws `SubscriptOutOfRange` where there is none.
const CtdRibbon& CtdRibbonAt(std::span<const CtdRibbon> ribbons, int index);

/// The code that a task has in a group. Throws `Overflow` for one beyond 16 bits.
int CtdCodeOf(CtdGroup group, int task);
/// The category of a slot, 0 where the field is empty.
double CtdCategoryOf(int slot, int task);
/// Stores a category, as a click on its ribbon does.
void StoreCtdCategory(int slot, int task, Integer category);

/// The two-state controls of the CTD form without a screen, and what their events do to the job. A
/// new object is the form as designed: right side, the ribbon with code 0 of every group down, no
/// body part chosen.
class CtdControls : public HandControls {
 public:
  CtdControls() : HandControls(0) {}

  static constexpr int kNoBodyPart = -1;

  /// Puts every control back to its design state; runs no handler.
  void Reset() { *this = CtdControls(); }

  /// What the form's load does to the job, task list included. Tells `shown` of each task whose
  /// codes all name ribbons, while it is the current one. Throws `SubscriptOutOfRange` for a hand
  /// that names no option.
  void Load(const std::function<void(int task)>& shown = [](int) {});

  /// Presses the ribbons of the four groups at the codes of `CurrentTask`. Throws
  /// `SubscriptOutOfRange` at the first code that names no ribbon.
  void PressStoredRibbons();

  /// The user, or the load, presses a ribbon of a group. One that is down stays as it is.
  void PressRibbon(CtdGroup group, int index);
  /// The user presses a ribbon of the body-part selector: its two categories are shown.
  void PressBodyPart(int index);
  /// The user, or `PressBodyPart`, presses the ribbon of a category.
  void PressCategory(int slot, int index);

  [[nodiscard]] int bodyPart() const { return bodyPart_; }
  [[nodiscard]] int down(CtdGroup group) const { return down_[static_cast<std::size_t>(group)]; }
  [[nodiscard]] int category(int slot) const { return category_[static_cast<std::size_t>(slot)]; }

 private:
  int bodyPart_ = kNoBodyPart;
  std::array<int, 4> down_{};
  std::array<int, kCtdSlotCount> category_{};
};

}  // namespace halvane
