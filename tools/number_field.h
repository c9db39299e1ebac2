#pragma once

#include <string_view>
#include <variant>

#include "core/job_state.h"

namespace halvane {

/// Which field of the job a control keeps its number in: the member of `JobState`, whatever kind of
/// number it holds. The last three have one number a task.
using NumberField = std::variant<Integer JobState::*, double JobState::*, TaggedField JobState::*,
                                 TaskArray<Integer> JobState::*, TaskArray<double> JobState::*,
                                 TaskArray<TaggedField> JobState::*>;

/// What a field holds, in its own kind; `task` counts for one with a number a task alone. Throws
/// `SubscriptOutOfRange` for a task that the field has no place for.
TaggedField NumberIn(const NumberField& field, int task = 0);

/// What it counts as in a calculation; throws `Overflow` besides for a text that reads as a number
/// beyond a double.
double ValueIn(const NumberField& field, int task = 0);

/// Stores a number in a field. One that keeps the kind of its number keeps a whole one whole.
/// Throws `SubscriptOutOfRange` as above, and `Overflow` for a number beyond a 16-bit field.
void StoreNumber(const NumberField& field, int task, Integer number);
void StoreNumber(const NumberField& field, int task, double number);

/// The same in the task on screen; a field with a number a task stays as it is while there is none.
void StoreOnScreen(const NumberField& field, Integer number);
void StoreOnScreen(const NumberField& field, double number);

/// A key was released in the box of a field: marks the job as changed and stores the number that
/// the text reads as, as above.
void NumberTyped(const NumberField& field, std::string_view text);

}  // namespace halvane
