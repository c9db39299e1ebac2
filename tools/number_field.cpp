#include "tools/number_field.h"

#include <concepts>
#include <optional>

#include "core/task_list.h"

namespace halvane {
namespace {

template <typename T>
T& Place(T& field, int /*task*/) {
  return field;
}
template <typename T>
T& Place(TaskArray<T>& field, int task) {
  return field.at(task);
}

template <typename Number>
void Store(const NumberField& field, int task, Number number) {
  const auto store = [task, number](auto member) {
    auto& place = Place(Module1.*member, task);
    if constexpr (std::same_as<decltype(place), Integer&>) {
      place = ToInteger(number);
    } else {
      place = number;
    }
  };
  std::visit(store, field);
}

bool IsOfATask(const NumberField& field) {
  return std::holds_alternative<TaskArray<Integer> JobState::*>(field) ||
         std::holds_alternative<TaskArray<double> JobState::*>(field) ||
         std::holds_alternative<TaskArray<TaggedField> JobState::*>(field);
}

template <typename Number>
void StoreShown(const NumberField& field, Number number) {
  if (!IsOfATask(field)) {
    Store(field, 0, number);
  } else if (const std::optional<int> task = TaskOnScreen()) {
    Store(field, *task, number);
  }
}

}  // namespace

TaggedField NumberIn(const NumberField& field, int task) {
  return std::visit([task](auto member) { return TaggedField(Place(Module1.*member, task)); },
                    field);
}

double ValueIn(const NumberField& field, int task) {
  const auto valueOf = [task](auto member) -> double {
    const auto& place = Place(Module1.*member, task);
    if constexpr (std::same_as<decltype(place), const TaggedField&>) {
      return place.AsDouble();
    } else {
      return place;
    }
  };
  return std::visit(valueOf, field);
}

void StoreNumber(const NumberField& field, int task, Integer number) { Store(field, task, number); }

void StoreNumber(const NumberField& field, int task, double number) { Store(field, task, number); }

void StoreOnScreen(const NumberField& field, Integer number) { StoreShown(field, number); }

void StoreOnScreen(const NumberField& field, double number) { StoreShown(field, number); }

void NumberTyped(const NumberField& field, std::string_view text) {
  Module1.JobDirty = kTrue;
  StoreOnScreen(field, TypedNumber(text));
}

}  // namespace halvane
