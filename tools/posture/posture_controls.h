#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "tools/hand_controls.h"
#include "tools/posture/posture_rows.h"

namespace halvane {

/// The controls of a form without a screen: which choices are set, and the handlers that their
/// events run. A handler stores the factor and the saved state of its control and marks the job as
/// changed. A new object is the form as designed, with nothing down, checked or chosen. A choice is
/// named by any control of its array and its index there; one that there is not throws
/// `SubscriptOutOfRange`.
class PostureControls : public HandControls {
 public:
  static constexpr int kNone = -1;

  virtual ~PostureControls() = default;

  /// Puts every control back to its design state; runs no handler.
  void Reset();

  /// What the form's load does to the job: sets the hand and then each control, in the order of its
  /// rows, as the job says, with its handlers. What is clear there runs none, so its factor keeps
  /// what the job before gave it, which is wanted. Throws `SubscriptOutOfRange` at the step of a
  /// hand or of a control whose saved value names no choice and has to, `Overflow` where too much
  /// is counted.
  void Load();

  /// The user, or the load, sets a choice, and the one of its control that was set goes. One that
  /// is set stays as it is.
  void Set(const PostureControl& control, int index);
  /// Lets up a choice of a control that may be up; any other stays as it is.
  void Release(const PostureControl& control, int index);
  /// The user clicks a choice: releases it where it is set and may be up, else sets it.
  void Click(const PostureControl& control, int index);

  [[nodiscard]] bool IsSet(const PostureControl& control, int index) const;
  /// The index in its array of what is set on a control, else `kNone`.
  [[nodiscard]] int chosen(const PostureControl& control) const;

 protected:
  /// Of the rows of a tool, in the order in which its form's load sets them.
  explicit PostureControls(std::span<const PostureControl> rows);

  /// The handler: stores what follows from a choice that is set now, or from `kNone` of them.
  virtual void Store(const PostureControl& control, int index);

 private:
  /// The place in the rows of the control that has a choice of the array of `control`.
  [[nodiscard]] std::size_t PlaceOf(const PostureControl& control, int index) const;
  void LoadSaved(const PostureControl& control);

  std::span<const PostureControl> rows_;
  std::vector<int> chosen_;  ///< by place in the rows
};

}  // namespace halvane
