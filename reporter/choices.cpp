#include "reporter/choices.h"

#include <numeric>
#include <span>

#include "tools/ctd/ctd_controls.h"
#include "tools/hal/hal_controls.h"
#include "tools/hand_controls.h"
#include "tools/ocra/ocra_controls.h"
#include "tools/reba/reba_controls.h"
#include "tools/rula/rula_controls.h"
#include "tools/strain_index/si_controls.h"

namespace halvane {
namespace {

std::vector<double> UpTo(int highest) {
  std::vector<double> choices(static_cast<std::size_t>(highest) + 1);
  std::iota(choices.begin(), choices.end(), 0);
  return choices;
}

std::vector<double> ForceRatings(int /*task*/) {
  std::vector<double> ratings;
  for (int place = 0; place <= kOcraSliderEnd; ++place) ratings.push_back(OcraRatingAt(place));
  return ratings;
}

std::vector<double> TickStates(int /*element*/) { return {0, kOcraTicked}; }

std::vector<double> RibbonsOf(SiRibbonArray array) {
  return UpTo(SiFrameOf(array).ribbonCount() - 1);
}

std::vector<double> CodesOf(std::span<const CtdRibbon> ribbons) {
  std::vector<double> codes;
  for (const CtdRibbon& ribbon : ribbons) codes.push_back(ribbon.index);
  return codes;
}

std::vector<double> CodesOf(CtdGroup group) {
  return CodesOf(kCtdGroups[static_cast<std::size_t>(group)].ribbons);
}

struct ChoiceRow {
  std::string_view field;
  std::vector<double> (*choices)(int element);
};

template <CtdGroup group>
std::vector<double> Codes(int /*task*/) {
  return CodesOf(group);
}

template <std::size_t slot>
std::vector<double> Categories(int /*task*/) {
  return CodesOf(kCtdSlots[slot].categories);
}

template <SiRibbonArray array>
std::vector<double> Ribbons(int /*element*/) {
  return RibbonsOf(array);
}

constexpr std::array kRows{
    ChoiceRow{"TaskCount", [](int) { return UpTo(kHighestTask); }},
    ChoiceRow{"TaskActive", [](int) { return UpTo(1); }},
    ChoiceRow{"Hand", [](int) { return UpTo(kHandOptions - 1); }},
    ChoiceRow{"HalActivityLevel", [](int) { return UpTo(kHalHighestLevel); }},
    ChoiceRow{"RulaControlState",
              [](int element) { return UpTo(HighestState(kRulaControls, element)); }},
    ChoiceRow{"RebaControlState",
              [](int element) { return UpTo(HighestState(kRebaControls, element)); }},
    ChoiceRow{"SiIntensityPick", Ribbons<SiRibbonArray::SSRibbon1>},
    ChoiceRow{"SiPosturePick", Ribbons<SiRibbonArray::SSRibbon2>},
    ChoiceRow{"SiSpeedPick", Ribbons<SiRibbonArray::SSRibbon3>},
    ChoiceRow{"OcraComboChoice", [](int) { return UpTo(kOcraNotApplicable); }},
    ChoiceRow{"OcraRecoveryHours", [](int) { return UpTo(kOcraSliderEnd); }},
    ChoiceRow{"OcraForceRating", ForceRatings},
    ChoiceRow{"OcraWristActions", TickStates},
    ChoiceRow{"OcraWristHold", TickStates},
    ChoiceRow{"OcraSameFingers", TickStates},
    ChoiceRow{"OcraHoldObject", TickStates},
    ChoiceRow{"OcraElbowGesture", TickStates},
    ChoiceRow{"CtdGripType", Codes<CtdGroup::Grip>},
    ChoiceRow{"CtdWristPosition", Codes<CtdGroup::Wrist>},
    ChoiceRow{"CtdRadUlnDeviation", Codes<CtdGroup::RadialUlnar>},
    ChoiceRow{"CtdFlexExtDeviation", Codes<CtdGroup::FlexionExtension>},
    ChoiceRow{"CtdLtShoulderFlexion", Categories<0>},
    ChoiceRow{"CtdRtShoulderFlexion", Categories<1>},
    ChoiceRow{"CtdLtShoulderAbduction", Categories<2>},
    ChoiceRow{"CtdRtShoulderAbduction", Categories<3>},
    ChoiceRow{"CtdLtElbowFlexion", Categories<4>},
    ChoiceRow{"CtdRtElbowFlexion", Categories<5>},
    ChoiceRow{"CtdBackFlexion", Categories<6>},
    ChoiceRow{"CtdNeckFlexion", Categories<7>},
};

}  // namespace

std::vector<double> ChoicesOf(const FieldName& name) {
  for (const ChoiceRow& row : kRows) {
    if (row.field == name.field) return row.choices(name.first);
  }
  return {};
}

}  // namespace halvane
