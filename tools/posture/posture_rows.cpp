#include "tools/posture/posture_rows.h"

#include <algorithm>
#include <type_traits>

#include "core/number_text.h"

namespace halvane {

Integer& JobInteger::Value() const {
  const auto at = [this](auto member) -> Integer& {
    if constexpr (std::is_same_v<decltype(member), Integer JobState::*>) {
      return Module1.*member;
    } else {
      return (Module1.*member).at(element);
    }
  };
  return std::visit(at, field);
}

std::string WidgetName(const PostureControl& control, int index) {
  const std::string name(control.objectName);
  const bool isOneWidget = control.isBox() || control.kind == PostureKind::List;
  return isOneWidget ? name : name + "(" + PlainText(index) + ")";
}

const PostureChoice& ChoiceAt(const PostureControl& control, int index) {
  return control.array[CheckedSubscript(index, control.array.size())];
}

int HighestState(std::span<const PostureControl> controls, int element) {
  // All save their state in one field, which knows its bounds.
  (void)JobInteger{controls.front().state.field, element}.Value();
  const auto control = std::ranges::find_if(
      controls, [element](const PostureControl& one) { return one.state.element == element; });
  return control == controls.end() ? 0 : control->firstState + control->count - 1;
}

}  // namespace halvane
