#include "reporter/choices.h"

#include <array>
#include <numeric>
#include <span>
#include <unordered_map>

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
  int elements = 1;  ///< that have choices of their own; 1: all have the same
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
              [](int element) { return UpTo(HighestState(kRulaControls, element)); },
              decltype(JobState::RulaControlState)::size()},
    ChoiceRow{"RebaControlState",
              [](int element) { return UpTo(HighestState(kRebaControls, element)); },
              decltype(JobState::RebaControlState)::size()},
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

/// The lists of all rows, made once: they are asked for with each field of each job.
class ChoiceLists {
 public:
  ChoiceLists() {
    for (const ChoiceRow& row : kRows) {
      std::vector<std::vector<double>>& lists = lists_[row.field];
      for (int element = 0; element < row.elements; ++element) {
        lists.push_back(row.choices(element));
      }
    }
  }

  [[nodiscard]] const std::vector<double>& Of(const FieldName& name) const {
    const auto found = lists_.find(name.field);
    if (found == lists_.end()) return none_;
    const auto& lists = found->second;
    return lists.size() == 1 ? lists.front() : lists.at(static_cast<std::size_t>(name.first));
  }

 private:
  std::unordered_map<std::string_view, std::vector<std::vector<double>>> lists_;
  std::vector<double> none_;
};

}  // namespace

const std::vector<double>& ChoicesOf(const FieldName& name) {
  static const ChoiceLists all;
  return all.Of(name);
}

}  // namespace halvane
