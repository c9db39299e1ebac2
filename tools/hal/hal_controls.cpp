#include "tools/hal/hal_controls.h"

#include <algorithm>

#include "core/checked_array.h"
#include "core/job_state.h"
#include "tools/hal/hal_score.h"
#include "tools/hand_controls.h"

namespace halvane {
namespace {

int NearestPosition(double value, double highest) {
  return ToInteger(std::clamp(value, 0.0, highest));
}

}  // namespace

// clang-format off
constexpr std::array<HalMark, 6> kHalLevelMarks{{
    { 0, "0",   "Handle idle most of the time; no regular exertion"},
    { 2, "2.0", "Consistent conspicuous, long pauses; or very slow motion"},
    { 4, "4.0", "Slow, steady motion/ exertions; frequent brief pauses"},
    { 6, "6.0", "Steady motion/exertion; infrequent pause"},
    { 8, "8.0", "Rapid, steady motion/ exertions; no regular pauses"},
    {10, "10",  "Rapid, steady motion/ difficulty keeping up or continuous exertion"},
}};

constexpr std::array<HalMark, 11> kHalForceMarks{{
    { 0, "0",   "Nothing At All"},
    { 1, "1.0", "Very Weak"},
    { 2, "2.0", "Weak (Light)"},
    { 3, "3.0", "Moderate"},
    { 4, "4.0", ""},
    { 5, "5.0", "Strong (Heavy)"},
    { 6, "6.0", ""},
    { 7, "7.0", "Very Strong"},
    { 8, "8.0", ""},
    { 9, "9.0", "Extremely Strong (Almost max.)"},
    {10, "10",  ""},
}};
// clang-format on

static_assert(std::ssize(kHalLimitCaptions) == decltype(JobState::HalLimits)::size(),
              "a caption a limit");
static_assert(kHalThresholdLimitValue == 0 && kHalActionLevel == 1, "captions stand so");
static_assert(kHalBoxes[kHalDuty].name == kHalDutyCaption, "a box stands at its index");

std::string_view HalLimitHeading() {
  return Module1.HalForceMode == kFalse
             ? "Activity Limit"
             : "Force Limit (% of maximum strength on a normalized 10-point scale)";
}

void HalLoad() {
  Module1.HalForceMode = kTrue;
  HalHandChosen(Module1.Hand);
}

void HalHandChosen(int index) {
  CheckedSubscript(index, kHandOptions);
  Module1.Hand = static_cast<Integer>(index);
}

void HalTyped(int index, std::string_view text) {
  NumberTyped(kHalBoxes[CheckedSubscript(index, kHalBoxes.size())].field, text);
  GetExertionLevel();
}

std::string HalDutyDragged(int sliderValue) {
  std::string text = PlainText(sliderValue);
  HalTyped(kHalDuty, text);
  return text;
}

std::string HalLevelMoved(int sliderValue) {
  Module1.JobDirty = kTrue;
  std::string level = Format(sliderValue, Pattern::OneDecimal);
  Module1.HalActivityLevel = level;
  Module1.HalExertionFrequency = 0.0;
  Module1.HalDutyCycle = 0.0;
  return level;
}

int HalLevelSlider() {
  return NearestPosition(Module1.HalActivityLevel.AsDouble(), kHalHighestLevel);
}

int HalDutySlider() { return NearestPosition(Module1.HalDutyCycle.AsDouble(), kHalHighestDuty); }

}  // namespace halvane
