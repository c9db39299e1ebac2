#pragma once

#include <array>
#include <string>
#include <string_view>

#include "tools/number_field.h"

namespace halvane {

// Captions of the frames, in the order of the screen; the last is the scale's tip.
inline constexpr std::string_view kHalExertionCaption = "Exertion:";
inline constexpr std::string_view kHalDutyCaption = "Duty Cycle (% Work Cycle)";
inline constexpr std::string_view kHalLevelCaption = "Rate The Hand Activity Level:";
inline constexpr std::string_view kHalForceCaption = "Borg Scale";
inline constexpr std::string_view kHalLevelTip = "Hand Activity Level Scale";
/// What stands before a limit, on the form and in the report; by element of `HalLimits`.
inline constexpr std::array<std::string_view, 2> kHalLimitCaptions{"Threshold Limit Value:",
                                                                   "Action Level:"};
/// The small print under the limits.
inline constexpr std::string_view kHalNote =
    "Note: TLV do not include the following factors - Sustained non-neutral postures, contact "
    "stresses, low temperatures and vibration.";

/// A box for a number.
struct HalBox {
  std::string_view name;
  std::string_view unit;  ///< empty: none
  NumberField field;
};
inline constexpr int kHalFrequency = 0;
inline constexpr int kHalDuty = 1;
/// A box stands at its index of `Text1`.
inline constexpr std::array kHalBoxes{
    HalBox{"Exertion Frequency", "no. of exertion per min.", &JobState::HalExertionFrequency},
    HalBox{kHalDutyCaption, "", &JobState::HalDutyCycle},
};

/// A place on a scale of the form: its number, the tick label there and the words under it.
struct HalMark {
  int position;
  std::string_view tick;
  std::string_view words;
};

/// The scale of the Hand Activity Level, 0 to 10.
extern const std::array<HalMark, 6> kHalLevelMarks;
/// The printed scale of the force, 0 to 10. The words of 9 count up to 10.
extern const std::array<HalMark, 11> kHalForceMarks;
inline constexpr int kHalForceStretch = 9;

/// The ends of the form's two sliders; both begin at 0.
inline constexpr int kHalHighestLevel = 10;
inline constexpr int kHalHighestDuty = 100;

/// The heading of the force scale, which the report reads too: what the limits limit, by
/// `HalForceMode`.
std::string_view HalLimitHeading();

/// What the form's load does to the job, which it leaves clean. Throws `SubscriptOutOfRange` for a
/// hand that names no option.
void HalLoad();
/// The user, or the load, chooses a hand. Does not mark the job, which is wanted. Throws
/// `SubscriptOutOfRange` for an index that names no option.
void HalHandChosen(int index);

// What the other inputs do to the job. Each marks it as changed; the caller computes the limits
// then.

/// A key was released in `Text1(index)`. Throws `SubscriptOutOfRange` for an index without a box.
void HalTyped(int index, std::string_view text);
/// The mouse moved the slider of the duty cycle, a button held; gives the text for the box.
std::string HalDutyDragged(int sliderValue);
/// The user moved the scale, which takes the place of both boxes: their fields become 0. Gives the
/// level as the field keeps it, "3.0".
std::string HalLevelMoved(int sliderValue);

/// Where the scale stands for the level of the job; the nearest end for one beyond it.
int HalLevelSlider();
/// Where the slider stands for the duty cycle of the job; the nearest end for one beyond it.
int HalDutySlider();

}  // namespace halvane
