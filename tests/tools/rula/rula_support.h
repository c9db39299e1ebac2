#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
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

inline RulaRibbonArray RibbonsNamed(std::string_view name) {
  if (name == "SSRibbon1") return RulaRibbonArray::SSRibbon1;
  if (name == "SSRibbon2") return RulaRibbonArray::SSRibbon2;
  if (name == "SSRibbon3") return RulaRibbonArray::SSRibbon3;
  if (name == "SSRibbon4") return RulaRibbonArray::SSRibbon4;
  if (name == "SSRibbon5") return RulaRibbonArray::SSRibbon5;
  throw std::invalid_argument(std::string(name));
}

inline RulaCheckArray ChecksNamed(std::string_view name) {
  if (name == "SSCheck1") return RulaCheckArray::SSCheck1;
  if (name == "SSCheck2") return RulaCheckArray::SSCheck2;
  if (name == "SSCheck3") return RulaCheckArray::SSCheck3;
  if (name == "SSCheck4") return RulaCheckArray::SSCheck4;
  throw std::invalid_argument(std::string(name));
}

inline RulaOptionArray OptionsNamed(std::string_view name) {
  if (name == "SSOption1") return RulaOptionArray::SSOption1;
  if (name == "SSOption3") return RulaOptionArray::SSOption3;
  if (name == "SSOption4") return RulaOptionArray::SSOption4;
  throw std::invalid_argument(std::string(name));
}

/// Presses, checks or chooses a control, as the user does.
inline void TurnOn(RulaControls& controls, RulaControlName name) {
  if (name.array.starts_with("SSRibbon")) {
    controls.PressRibbon(RibbonsNamed(name.array), name.index);
  } else if (name.array.starts_with("SSCheck")) {
    controls.SetCheck(ChecksNamed(name.array), name.index, true);
  } else {
    controls.ChooseOption(OptionsNamed(name.array), name.index);
  }
}

/// Releases or unchecks a control, as the user does.
inline void TurnOff(RulaControls& controls, RulaControlName name) {
  if (name.array.starts_with("SSRibbon")) {
    controls.ReleaseRibbon(RibbonsNamed(name.array), name.index);
  } else {
    controls.SetCheck(ChecksNamed(name.array), name.index, false);
  }
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
       {"SSRibbon1", "SSRibbon2", "SSRibbon3", "SSRibbon4", "SSRibbon5"}) {
    const auto count = static_cast<int>(RulaRibbonsOf(RibbonsNamed(name)).ribbons.size());
    for (int i = 0; i < count; ++i) {
      if (controls.IsDown(RibbonsNamed(name), i)) add(name, i);
    }
  }
  for (const std::string_view name : {"SSCheck1", "SSCheck2", "SSCheck3", "SSCheck4"}) {
    const auto count = static_cast<int>(RulaChecksOf(ChecksNamed(name)).checks.size());
    for (int i = 0; i < count; ++i) {
      if (controls.IsChecked(ChecksNamed(name), i)) add(name, i);
    }
  }
  for (const std::string_view name : {"SSOption1", "SSOption3", "SSOption4"}) {
    const int chosen = controls.chosen(OptionsNamed(name));
    if (chosen != RulaControls::kNone) add(name, chosen);
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
