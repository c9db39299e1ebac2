#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/checked_array.h"
#include "core/job_state.h"

namespace halvane {

/// A whole number of the job: a field, or one element of it.
struct JobInteger {
  using Field =
      std::variant<Integer JobState::*, FixedArray<Integer, 2> JobState::*,
                   FixedArray<Integer, 3> JobState::*, FixedArray<Integer, 4> JobState::*,
                   FixedArray<Integer, 20> JobState::*, FixedArray<Integer, 23> JobState::*>;

  Field field;
  int element = 0;  ///< 0 where the field is one number

  /// Where it stands in `Module1`. Throws `SubscriptOutOfRange`.
  [[nodiscard]] Integer& Value() const;
};

/// What can be set on a control: a ribbon, a box, an option, an entry of a list.
struct PostureChoice {
  std::string_view caption;  ///< trailing blanks included, which the report keeps
  std::string_view toolTip;
  std::string_view picture;  ///< asset name, of a ribbon
  Integer score;             ///< what it puts into the factor of its control when it is set
};

/// What a control is on screen, and how it takes a click.
enum class PostureKind {
  Ribbons,     ///< picture ribbons of which one is down at all times
  AddOns,      ///< picture ribbons of which one at most is down; a click on that one releases it
  Box,         ///< a tick box
  CountedBox,  ///< a tick box of several with one factor, which is the sum of their saved states
  Options,     ///< radio buttons
  List,        ///< a drop-down list
};

/// What the load does with a saved value that stands for none of a control's choices.
enum class OtherSaved { Fails, SetsNone, SetsFirst, SetsLast };

/// A control of a tool that looks at the regions of the body: choices of which one at most is set,
/// the element of the job that saves which, and the factor that takes its score.
struct PostureControl {
  PostureKind kind;
  std::string_view objectName;           ///< without the index of the single ribbon or option
  std::span<const PostureChoice> array;  ///< the choices of the array of controls it is part of
  int first;                             ///< index in `array` of the first choice that is its own
  int count;                             ///< of its own choices
  JobInteger state;                      ///< 0 while none is set that may be so
  Integer firstState;  ///< what the first choice stores there; those behind it count on
  OtherSaved otherSaved;
  JobInteger factor;  ///< 0 while none is set that may be so

  /// Whether the choice of that index in `array` is its own.
  [[nodiscard]] constexpr bool Has(int index) const {
    return index >= first && index < first + count;
  }
  /// Whether none of its choices may be set once one was.
  [[nodiscard]] constexpr bool mayBeUp() const { return kind == PostureKind::AddOns || isBox(); }
  [[nodiscard]] constexpr bool isBox() const {
    return kind == PostureKind::Box || kind == PostureKind::CountedBox;
  }
  [[nodiscard]] constexpr int last() const { return first + count - 1; }
  /// The index that a saved state stands for, which may be none of its choices.
  [[nodiscard]] constexpr int IndexOf(Integer saved) const { return first + saved - firstState; }
};

/// A frame of the form: a region of the body, or what the work asks of it.
struct PostureRegion {
  std::string_view caption;
  std::span<const PostureControl> controls;
  std::string_view optionsPanel;  ///< caption of a panel around the options; empty: there is none
};

/// The rows of a tool's controls from `first` to `last`, which number them.
template <typename Control, std::size_t N>
constexpr std::span<const PostureControl> Rows(const std::array<PostureControl, N>& controls,
                                               Control first, Control last) {
  const auto from = static_cast<std::size_t>(first);
  return std::span(controls).subspan(from, static_cast<std::size_t>(last) - from + 1);
}

/// The name of the widget that shows a choice.
std::string WidgetName(const PostureControl& control, int index);

/// The choice of an index in the control's array. Throws `SubscriptOutOfRange`.
const PostureChoice& ChoiceAt(const PostureControl& control, int index);

/// The highest value that the controls of a tool store in an element of its saved state; the lowest
/// is 0. One without a control stays 0. Throws `SubscriptOutOfRange`.
int HighestState(std::span<const PostureControl> controls, int element);

/// Whether the frames of a form hold each control of a tool, and hold it once.
constexpr bool HoldEachOnce(std::span<const PostureRegion> regions,
                            std::span<const PostureControl> controls) {
  for (const PostureControl& control : controls) {
    int times = 0;
    for (const PostureRegion& region : regions) {
      for (const PostureControl& held : region.controls) times += &held == &control ? 1 : 0;
    }
    if (times != 1) return false;
  }
  return true;
}

/// Whether each control has an element of the saved state to itself, and none but its own choices.
constexpr bool AreWellFormed(std::span<const PostureControl> controls) {
  for (const PostureControl& control : controls) {
    if (control.first < 0 || control.count < 1) return false;
    if (control.first + control.count > static_cast<int>(control.array.size())) return false;
    for (const PostureControl& other : controls) {
      if (&other == &control) continue;
      if (other.state.element == control.state.element) return false;
      const bool oneArray = other.array.data() == control.array.data();
      if (oneArray && (other.Has(control.first) || other.Has(control.last()))) return false;
    }
  }
  return true;
}

}  // namespace halvane
