#pragma once

#include <string>
#include <string_view>

#include "tools/ctd/ctd_controls.h"

namespace halvane {

// What opening the tool and typing in its boxes do to the job, and what the boxes show then.

/// What opening the tool does to the job, on controls that nobody sees. Throws what the form's load
/// throws. False for a job that never had a task, which has no report.
bool CtdOpen();

/// Whether the job ever had a task, deleted ones counted.
bool CtdEverHadTasks();

/// A key was released in a box of the job or of the task on screen: marks the job as changed and
/// stores the number, unless it is a computed one. Stores nothing of a task while there is none.
void CtdTyped(const CtdBox& box, std::string_view text);
/// The same in a box of a posture slot. Throws `SubscriptOutOfRange` for a task beyond the last
/// that the postures have room for.
void CtdTyped(const CtdSlotBox& box, int slot, std::string_view text);

/// Computes `CtdRestTime` of a task from cycle time, repetitions and work time; never below 0.
void ComputeCtdRestTime(int task);
/// Computes `CtdCyclesPerShift`, unless the cycle time is 0 or less; gives what the box shows.
double ComputeCtdCyclesPerShift();

/// Computes the rest time of the task on screen and gives the text for its box; "0.00" while there
/// is none.
std::string CtdRestTimeText();
/// Computes the cycles a shift and gives the text for their box; "0" without a cycle time.
std::string CtdCyclesText();
/// The text for the box of a slot: of the task on screen, empty while there is none. Throws
/// `SubscriptOutOfRange` as above.
std::string CtdSlotText(const CtdSlotBox& box, int slot);
/// The unit of the hand span: "in" or "cm".
std::string_view CtdSpanUnit();

}  // namespace halvane
