#pragma once

namespace halvane {

/// The options of the Hand frame: right side, left side.
inline constexpr int kHandOptions = 2;

/// The Hand frame without a screen, the same in each tool that marks the job for a choice.
class HandControls {
 public:
  static constexpr int kNoHand = -1;

  /// The user, or the load, chooses a hand. The chosen one stays as it is. Throws
  /// `SubscriptOutOfRange` for an index that names no option.
  void ChooseHand(int index);

  /// The chosen option; `kNoHand` while none is.
  [[nodiscard]] int hand() const { return hand_; }

 protected:
  /// `designed` is the option that the form as designed has chosen, or `kNoHand`.
  explicit HandControls(int designed) : hand_(designed) {}

  /// Puts the options back to their design state, as above; runs no handler.
  void ResetHand(int designed) { hand_ = designed; }

 private:
  int hand_;
};

}  // namespace halvane
