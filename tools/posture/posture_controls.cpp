#include "tools/posture/posture_controls.h"

#include <algorithm>

namespace halvane {
namespace {

/// Whatever the job has saved for the boxes of one array counts, each step within 16 bits. Throws
/// `Overflow`.
Integer CountOf(std::span<const PostureControl> rows, const PostureControl& box) {
  Integer sum = 0;
  for (const PostureControl& row : rows) {
    if (row.array.data() == box.array.data()) sum = ToInteger(sum + row.state.Value());
  }
  return sum;
}

}  // namespace

PostureControls::PostureControls(std::span<const PostureControl> rows)
    : HandControls(kNoHand), rows_(rows), chosen_(rows.size(), kNone) {}

void PostureControls::Reset() {
  std::ranges::fill(chosen_, kNone);
  ResetHand(kNoHand);
}

void PostureControls::Load() {
  ChooseHand(Module1.Hand);
  for (const PostureControl& row : rows_) LoadSaved(row);
}

void PostureControls::LoadSaved(const PostureControl& control) {
  const int index = control.IndexOf(control.state.Value());
  if (control.Has(index)) return Set(control, index);
  switch (control.otherSaved) {
    // The index of an add-on in the same array presses that one and sets no base, which is wanted.
    case OtherSaved::Fails: return Set(control, index);
    case OtherSaved::SetsNone: return;
    case OtherSaved::SetsFirst: return Set(control, control.first);
    case OtherSaved::SetsLast: return Set(control, control.last());
  }
}

void PostureControls::Set(const PostureControl& control, int index) {
  const std::size_t place = PlaceOf(control, index);
  if (chosen_[place] == index) return;
  // The choice that goes stores nothing: what the new one stores takes its place.
  chosen_[place] = index;
  Store(rows_[place], index);
}

void PostureControls::Release(const PostureControl& control, int index) {
  const std::size_t place = PlaceOf(control, index);
  if (chosen_[place] != index || !rows_[place].mayBeUp()) return;
  chosen_[place] = kNone;
  Store(rows_[place], kNone);
}

void PostureControls::Click(const PostureControl& control, int index) {
  IsSet(control, index) ? Release(control, index) : Set(control, index);
}

bool PostureControls::IsSet(const PostureControl& control, int index) const {
  return chosen_[PlaceOf(control, index)] == index;
}

int PostureControls::chosen(const PostureControl& control) const {
  return chosen_[PlaceOf(control, control.first)];
}

void PostureControls::Store(const PostureControl& control, int index) {
  Module1.JobDirty = kTrue;
  const bool isSet = index != kNone;
  control.state.Value() =
      isSet ? static_cast<Integer>(control.firstState + index - control.first) : Integer{0};
  if (control.kind == PostureKind::CountedBox) {
    control.factor.Value() = CountOf(rows_, control);
  } else {
    control.factor.Value() = isSet ? ChoiceAt(control, index).score : Integer{0};
  }
}

std::size_t PostureControls::PlaceOf(const PostureControl& control, int index) const {
  const auto row = std::ranges::find_if(rows_, [&control, index](const PostureControl& one) {
    return one.array.data() == control.array.data() && one.Has(index);
  });
  return CheckedSubscript(static_cast<int>(row - rows_.begin()), rows_.size());
}

}  // namespace halvane
