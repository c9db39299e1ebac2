#include "reporter/field_rules.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_set>
#include <variant>
#include <vector>

#include "reporter/choices.h"
#include "reporter/field_effects.h"
#include "tools/ctd/ctd_controls.h"
#include "tools/hal/hal_controls.h"
#include "tools/ocra/ocra_controls.h"
#include "tools/strain_index/si_controls.h"

namespace halvane {
namespace {

struct Reason {
  std::string_view field;
  std::string_view text;
};
constexpr std::array kWithoutRule{
    Reason{"JobFileFlag", "carried along, without a use"},
    Reason{"TaskSpare", "carried along, without a use"},
    Reason{"JobAnalyst", "a name, shown as it stands"},
    Reason{"JobName", "a name, shown as it stands"},
    Reason{"JobWorkstationId", "a name, shown as it stands"},
    Reason{"TaskNames", "a name, shown as it stands"},
    Reason{"HalForceRating", "no control asks for it and no report comes from it"},
    Reason{"CtdRestTime", "computed anew before each use"},
};

/// The boxes for numbers of all tools, by the fields that they store in.
std::vector<NumberField> Boxes() {
  std::vector<NumberField> boxes{kOcraCycleTime.field, kCtdText5.field};
  for (const SiNumberFrame& frame : kSiNumberFrames) {
    for (const SiBox& box : frame.boxes) boxes.push_back(box.field);
  }
  for (const OcraBox& box : kOcraTaskBoxes) boxes.push_back(box.field);
  for (const HalBox& box : kHalBoxes) boxes.push_back(box.field);
  for (const auto& column :
       {std::span<const CtdBox>(kCtdText1), std::span<const CtdBox>(kCtdText2)}) {
    for (const CtdBox& box : column) {
      if (!box.isComputed) boxes.push_back(box.field);
    }
  }
  return boxes;
}

/// The task whose fields stand for those of all.
constexpr int kTask = 1;

template <typename T>
const void* PlaceOf(const T& field) {
  return &field;
}
template <typename T>
const void* PlaceOf(const TaskArray<T>& field) {
  return &field.at(kTask);
}

/// Collects the names that fields at some places of a job have in the file.
class BoxedFields {
 public:
  explicit BoxedFields(JobState& job) {
    const auto placeOf = [&job](auto member) -> const void* { return PlaceOf(job.*member); };
    for (const NumberField& box : Boxes()) places_.push_back(std::visit(placeOf, box));
    for (int slot = 0; slot < kCtdSlotCount; ++slot) {
      for (const CtdSlotBox& box : {kCtdLoad, kCtdDuration}) {
        places_.push_back(&(job.*box.field).at(kTask, slot));
      }
    }
    VisitJobFields(job, *this);
  }

  void HeaderLine() {}
  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (Collect(fields.name.field, &fields.value), ...);
  }

  [[nodiscard]] const std::vector<std::string_view>& names() const { return names_; }

 private:
  void Collect(std::string_view name, const void* place) {
    if (std::ranges::count(places_, place) > 0) names_.push_back(name);
  }

  std::vector<const void*> places_;
  std::vector<std::string_view> names_;
};

using NameSet = std::unordered_set<std::string_view>;

const NameSet& BoxedNames() {
  static const NameSet names = [] {
    // The arrays of a job are sized in the one instance alone.
    JobState job = std::exchange(Module1, JobState{});
    Module1.TaskCount = Integer{kTask};
    ResizeTaskArrays();
    std::swap(job, Module1);
    const BoxedFields fields(job);
    return NameSet(fields.names().begin(), fields.names().end());
  }();
  return names;
}

bool IsBoxed(const FieldName& name) { return BoxedNames().contains(name.field); }

/// "0 to 4", "0 to 5 in steps of 0.5", "0, 2, 3, 4".
std::string RangeText(const std::vector<double>& choices) {
  const double step = choices.size() > 2 ? choices[1] - choices[0] : 1;
  const bool hasGaps =
      choices.back() - choices.front() != step * static_cast<double>(choices.size() - 1);
  if (choices.size() > 1 && !hasGaps) {
    return PlainText(choices.front()) + " to " + PlainText(choices.back()) +
           (step == 1 ? "" : " in steps of " + PlainText(step));
  }
  std::string text;
  for (const double choice : choices) text += (text.empty() ? "" : ", ") + PlainText(choice);
  return text;
}

bool IsBlank(const std::string& text) { return text.find_first_not_of(" \t") == text.npos; }

/// The number that a field holds, a text that is one included; nothing for any other text. An empty
/// field is 0, quoted or not.
std::optional<double> NumberOf(const TaggedField& value) {
  const auto* text = std::get_if<std::string>(&value.value());
  if (text == nullptr) return value.AsDouble();
  return IsBlank(*text) ? 0 : WholeTextAsNumber(*text);
}

std::optional<WrongValue> WrongWithChoice(const FieldName& name, const TaggedField& value,
                                          const std::optional<double>& number,
                                          const std::vector<double>& choices) {
  if (!number || std::ranges::count(choices, *number) == 0) {
    return WrongValue{"is outside its range, " + RangeText(choices), EffectOf(name, value)};
  }
  if (IsComputedWith(name, value)) return std::nullopt;
  return WrongValue{"is none of those that count, though it can be set", EffectOf(name, value)};
}

std::optional<WrongValue> WrongWithNumber(const TaggedField& value,
                                          const std::optional<double>& number) {
  if (!number) return WrongValue{"is no number", "it counts as " + PlainText(value.AsDouble())};
  if (*number >= 0) return std::nullopt;
  // A box takes it, but nothing that is measured or counted here is less than nothing.
  return WrongValue{"is below 0, where 0 or more is expected", "it counts as it stands"};
}

}  // namespace

FieldRule RuleOf(const FieldName& name) {
  if (!ChoicesOf(name).empty()) return FieldRule::Choice;
  return IsBoxed(name) ? FieldRule::Number : FieldRule::None;
}

std::string_view WhyWithoutRule(std::string_view field) {
  const auto* const found = std::ranges::find(kWithoutRule, field, &Reason::field);
  return found == kWithoutRule.end() ? std::string_view() : found->text;
}

std::optional<WrongValue> WrongWith(const FieldName& name, const TaggedField& value) {
  const std::vector<double>& choices = ChoicesOf(name);
  if (choices.empty() && !IsBoxed(name)) return std::nullopt;
  try {
    const std::optional<double> number = NumberOf(value);
    return choices.empty() ? WrongWithNumber(value, number)
                           : WrongWithChoice(name, value, number, choices);
  } catch (const RuntimeFailure&) {
    return WrongValue{"is beyond any number that the program can hold",
                      "each tool that reads it fails"};
  }
}

}  // namespace halvane
