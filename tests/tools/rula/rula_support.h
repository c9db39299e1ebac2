#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "tests/tools/posture/posture_support.h"
#include "tools/rula/rula_controls.h"

namespace halvane {

/// A control by its name on the form.
struct RulaControlName {
  std::string_view array;
  int index;

  [[nodiscard]] std::string text() const {
    return std::string(array) + "(" + std::to_string(index) + ")";
  }
};

inline const PostureControl& RowNamed(RulaControlName name) {
  return ControlNamed(kRulaControls, name.array, name.index);
}

/// Presses, checks or chooses a control, as the user does.
inline void TurnOn(RulaControls& controls, RulaControlName name) {
  controls.Set(RowNamed(name), name.index);
}

/// Releases or unchecks a control, as the user does.
inline void TurnOff(RulaControls& controls, RulaControlName name) {
  controls.Release(RowNamed(name), name.index);
}

inline bool IsOn(const RulaControls& controls, RulaControlName name) {
  return controls.IsSet(RowNamed(name), name.index);
}

/// The choices of a control array.
inline std::span<const PostureChoice> ChoicesOf(std::string_view array) {
  return RowNamed({array, 0}).array;
}

/// The controls that are set, by frame: "SSRibbon1(0) SSCheck1(1) ...". A hand is "Hand(1)".
inline std::string SetControls(const RulaControls& controls) {
  std::string text;
  const auto add = [&text](std::string_view array, int index) {
    if (!text.empty()) text += " ";
    text += RulaControlName{array, index}.text();
  };
  if (controls.hand() != RulaControls::kNone) add("Hand", controls.hand());
  for (const std::string_view name :
       {"SSRibbon1", "SSRibbon2", "SSRibbon3", "SSRibbon4", "SSRibbon5", "SSCheck1", "SSCheck2",
        "SSCheck3", "SSCheck4", "SSOption1", "SSOption3", "SSOption4"}) {
    for (int i = 0; i < static_cast<int>(ChoicesOf(name).size()); ++i) {
      if (IsOn(controls, {name, i})) add(name, i);
    }
  }
  return text;
}

/// The working factors: upper arm, lower arm, wrist, twist, neck, trunk, leg, muscle, force.
inline std::vector<std::vector<int>> RulaFactors() {
  const auto elements = [](const auto& array) {
    std::vector<int> values;
    for (int i = 0; i < array.size(); ++i) values.push_back(array.at(i));
    return values;
  };
  return {elements(Module1.RulaUpperArmFactors),
          elements(Module1.RulaLowerArmFactors),
          elements(Module1.RulaWristFactors),
          {Module1.RulaWristTwistFactor},
          elements(Module1.RulaNeckFactors),
          elements(Module1.RulaTrunkFactors),
          {Module1.RulaLegFactor},
          {Module1.RulaMuscleFactor},
          {Module1.RulaForceFactor}};
}

/// The same, every element `value`.
inline void FillRulaFactors(Integer value) {
  Module1.RulaUpperArmFactors.fill(value);
  Module1.RulaLowerArmFactors.fill(value);
  Module1.RulaWristFactors.fill(value);
  Module1.RulaWristTwistFactor = value;
  Module1.RulaNeckFactors.fill(value);
  Module1.RulaTrunkFactors.fill(value);
  Module1.RulaLegFactor = value;
  Module1.RulaMuscleFactor = value;
  Module1.RulaForceFactor = value;
}

}  // namespace halvane
