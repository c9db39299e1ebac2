#include "reporter/field_effects.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "core/tool_names.h"
#include "reporter/choices.h"
#include "tools/hal/hal_controls.h"
#include "tools/ocra/ocra_score.h"
#include "tools/reba/reba_controls.h"
#include "tools/rula/rula_controls.h"

namespace halvane {
namespace {

std::string Fails(Tool tool) { return std::string(NameOf(tool).key) + " fails"; }
std::string CountsAs(double number) { return "it counts as " + PlainText(number); }

bool IsChoice(const FieldName& name, double number) {
  return std::ranges::count(ChoicesOf(name), number) > 0;
}

std::string_view Trimmed(std::string_view caption) {
  return caption.substr(0, caption.find_last_not_of(' ') + 1);
}

/// What the load of a form does with a saved state that names none of its control's choices.
std::string OfPosture(std::span<const PostureControl> controls, Tool tool, const FieldName& name,
                      double number) {
  const auto control = std::ranges::find_if(
      controls, [&name](const PostureControl& one) { return one.state.element == name.first; });
  if (control == controls.end()) return "nothing reads it";
  const auto caption = [&control](int index) {
    return std::string("\"").append(Trimmed(ChoiceAt(*control, index).caption)).append("\"");
  };
  const int index = control->IndexOf(static_cast<Integer>(number));
  switch (control->otherSaved) {
    case OtherSaved::Fails:
      if (index >= 0 && index < static_cast<int>(control->array.size())) {
        return "it sets " + caption(index) + " and none of its own choices";
      }
      return Fails(tool);
    case OtherSaved::SetsFirst: return "it counts as " + caption(control->first);
    case OtherSaved::SetsLast: return "it counts as " + caption(control->last());
    case OtherSaved::SetsNone: break;
  }
  if (control->kind == PostureKind::CountedBox) {
    return "its box stays empty; it counts as it stands where a box beside it is set";
  }
  return "nothing is set";
}

// What each field's value comes to that is none of its choices.

std::string OfHand(const FieldName& /*name*/, const TaggedField& /*value*/) {
  return "every tool fails";
}

std::string OfTaskCount(const FieldName& /*name*/, const TaggedField& value) {
  const double last = std::floor(value.AsDouble());
  return last < 1 ? "no task is read" : "tasks 1 to " + PlainText(last) + " are read";
}

std::string OfTaskActive(const FieldName& /*name*/, const TaggedField& value) {
  return value.AsDouble() == 1 ? "the task counts as there" : "the task counts as deleted";
}

std::string OfLevel(const FieldName& /*name*/, const TaggedField& value) {
  const double level = value.AsDouble();
  return "the limits are computed from " + PlainText(level) +
         (level > kHalHighestLevel ? " and are below 0" : "");
}

std::string OfRula(const FieldName& name, const TaggedField& value) {
  return OfPosture(kRulaControls, Tool::Rula, name, value.AsDouble());
}

std::string OfReba(const FieldName& name, const TaggedField& value) {
  return OfPosture(kRebaControls, Tool::Reba, name, value.AsDouble());
}

/// A pick is rounded to the number of a ribbon.
std::string OfPick(const FieldName& name, const TaggedField& value) {
  const double pick = std::nearbyint(value.AsDouble());
  return IsChoice(name, pick) ? CountsAs(pick) : Fails(Tool::StrainIndex);
}

std::string OfAnswer(const FieldName& /*name*/, const TaggedField& /*value*/) {
  return Fails(Tool::Ocra);
}

std::string OfTick(const FieldName& /*name*/, const TaggedField& value) {
  return CountsAs(value.AsDouble()) + " in the sum";
}

std::string OfHours(const FieldName& /*name*/, const TaggedField& value) {
  const auto multiplier = OcraRecoveryMultiplierOf(value.AsText());
  if (multiplier) return "its multiplier is " + PlainText(*multiplier);
  return "no multiplier answers to it, so the recovery multiplier is 0";
}

std::string OfForce(const FieldName& /*name*/, const TaggedField& value) {
  const auto multiplier = OcraForceMultiplierOf(value.AsDouble());
  if (multiplier) return "its multiplier is " + PlainText(*multiplier);
  return "no multiplier answers to it, so the force multiplier of the task is 0";
}

/// The table of strengths is asked for a code as it stands, the report's captions for a rounded
/// one.
std::string OfCode(const FieldName& name, const TaggedField& value) {
  if (IsChoice(name, value.AsDouble())) return CountsAs(value.AsDouble());
  return Fails(Tool::Ctd) + " on a task that exists";
}

/// The captions of the report are asked for a rounded category, the capacity for it as it stands.
std::string OfJoint(const FieldName& name, const TaggedField& value) {
  if (!IsChoice(name, std::nearbyint(value.AsDouble()))) return OfCode(name, value);
  if (IsChoice(name, value.AsDouble())) return CountsAs(value.AsDouble());
  return "the joint counts as without any capacity";
}

std::string OfElbow(const FieldName& name, const TaggedField& value) {
  const double category = value.AsDouble();
  const bool isBetween = !IsChoice(name, category) && IsChoice(name, std::nearbyint(category));
  if (!isBetween || category < 0) return OfJoint(name, value);
  return "the capacity of the joint is multiplied by " + PlainText(category);
}

struct EffectRow {
  std::string_view field;
  std::string (*effect)(const FieldName& name, const TaggedField& value);
};
constexpr std::array kEffects{
    EffectRow{"Hand", OfHand},
    EffectRow{"TaskCount", OfTaskCount},
    EffectRow{"TaskActive", OfTaskActive},
    EffectRow{"HalActivityLevel", OfLevel},
    EffectRow{"RulaControlState", OfRula},
    EffectRow{"RebaControlState", OfReba},
    EffectRow{"SiIntensityPick", OfPick},
    EffectRow{"SiPosturePick", OfPick},
    EffectRow{"SiSpeedPick", OfPick},
    EffectRow{"OcraComboChoice", OfAnswer},
    EffectRow{"OcraRecoveryHours", OfHours},
    EffectRow{"OcraForceRating", OfForce},
    EffectRow{"OcraWristActions", OfTick},
    EffectRow{"OcraWristHold", OfTick},
    EffectRow{"OcraSameFingers", OfTick},
    EffectRow{"OcraHoldObject", OfTick},
    EffectRow{"OcraElbowGesture", OfTick},
    EffectRow{"CtdGripType", OfCode},
    EffectRow{"CtdWristPosition", OfCode},
    EffectRow{"CtdRadUlnDeviation", OfCode},
    EffectRow{"CtdFlexExtDeviation", OfCode},
    EffectRow{"CtdLtShoulderFlexion", OfJoint},
    EffectRow{"CtdRtShoulderFlexion", OfJoint},
    EffectRow{"CtdLtShoulderAbduction", OfJoint},
    EffectRow{"CtdRtShoulderAbduction", OfJoint},
    EffectRow{"CtdLtElbowFlexion", OfElbow},
    EffectRow{"CtdRtElbowFlexion", OfElbow},
    EffectRow{"CtdBackFlexion", OfJoint},
    EffectRow{"CtdNeckFlexion", OfJoint},
};

}  // namespace

std::string EffectOf(const FieldName& name, const TaggedField& value) {
  const auto* const row = std::ranges::find(kEffects, name.field, &EffectRow::field);
  return row == kEffects.end() ? std::string() : row->effect(name, value);
}

bool IsComputedWith(const FieldName& name, const TaggedField& value) {
  return name.field != "OcraRecoveryHours" || OcraRecoveryMultiplierOf(value.AsText());
}

}  // namespace halvane
