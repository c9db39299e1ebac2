#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "core/integer.h"
#include "tools/hand_controls.h"

namespace halvane {

/// The frames of controls, in the order in which the form's load sets them.
enum class RebaRegion {
  UpperArms,
  LowerArms,
  Wrist,
  Neck,
  Trunk,
  Legs,
  Force,
  Coupling,
  MuscleUse
};
inline constexpr std::size_t kRebaRegionCount = 9;

/// The element of `Module1` that holds a working factor.
using RebaFactor = Integer& (*)();

/// A picture ribbon and what it stores when it is pressed; a released one stores 0 and 0.
struct RebaRibbon {
  std::string_view caption;
  std::string_view toolTip;
  std::string_view picture;  ///< asset name
  Integer factor;
  Integer state;  ///< element of `RebaControlState`
};

/// Neighbouring ribbons of which one at most is down.
struct RebaRibbonGroup {
  int first;     ///< index of its first ribbon
  int count;     ///< of ribbons
  bool mayBeUp;  ///< a click on the ribbon that is down releases it
  RebaFactor factor;
  int stateEntry;  ///< of `RebaControlState`
};

/// A check box; it stores 0 and 0 when it is cleared.
struct RebaCheck {
  std::string_view objectName;
  std::string_view caption;
  Integer value;      ///< of the factor when checked
  RebaFactor factor;  ///< null: the box is counted in `RebaActivityFactor`
  int stateEntry;     ///< of `RebaControlState`, 1 when checked
};

/// A frame: its ribbons stand at their indexes, and so do its boxes.
struct RebaFrame {
  std::string_view caption;
  std::string_view ribbonName;  ///< objectName of the ribbons, without the index
  std::span<const RebaRibbon> ribbons;
  std::span<const RebaRibbonGroup> groups;
  std::span<const RebaCheck> checks;
};

const RebaFrame& RebaFrameOf(RebaRegion region);

/// The highest value that the controls store in an element of `RebaControlState`; the lowest is 0.
/// Throws `SubscriptOutOfRange`.
int RebaHighestState(int entry);

/// The entries of `Combo2`, load levels, by list index; trailing blanks belong to them.
inline constexpr std::array<std::string_view, 3> kRebaLoads{"<5 kg  ", "5-10 kg", ">10 kg "};
inline constexpr std::string_view kRebaLoadToolTip = "Force or external load level";

/// An option of the coupling frame.
struct RebaCoupling {
  std::string_view caption;
  std::string_view toolTip;
};
/// An option stands at its index of `SSOption1`, which is its factor too.
extern const std::array<RebaCoupling, 4> kRebaCouplings;

/// The controls of the REBA form without a screen: which are set, and the handlers that their
/// events run. Each handler stores a working factor and the control's state and marks the job as
/// changed. A new object is the form as designed, with nothing down, checked or chosen.
class RebaControls : public HandControls {
 public:
  static constexpr int kNothingChosen = -1;

  RebaControls() : HandControls(kNoHand) {}

  /// Puts every control back to its design state; runs no handler.
  void Reset() { *this = RebaControls(); }

  /// What the form's load does to the job: sets each control as the job says, with its handlers. A
  /// box that is clear runs nothing, so the factor behind it keeps the value of the job before,
  /// which is wanted. Throws `SubscriptOutOfRange` for a saved value that names no control.
  void Load();

  /// Presses a ribbon; the one of its group that was down goes up. One that is down stays.
  void PressRibbon(RebaRegion region, int index);
  /// The user clicks a ribbon: presses it, or releases it where its group may be up.
  void ClickRibbon(RebaRegion region, int index);
  /// The user, or the load, sets a box. One that is so already stays as it is.
  void SetCheck(RebaRegion region, int index, bool checked);
  /// The user, or the load, picks an entry of the load list. The picked one stays as it is.
  void PickLoad(int index);
  /// The user, or the load, chooses a coupling. The chosen one stays as it is.
  void ChooseCoupling(int index);

  [[nodiscard]] int loadLevel() const { return loadLevel_; }
  [[nodiscard]] int coupling() const { return coupling_; }
  [[nodiscard]] bool IsDown(RebaRegion region, int index) const;
  [[nodiscard]] bool IsChecked(RebaRegion region, int index) const;

 private:
  static constexpr std::size_t kMostRibbons = 6;
  static constexpr std::size_t kMostChecks = 3;

  void CheckSaved(RebaRegion region);
  void StoreRibbon(RebaRegion region, int index, bool pressed);
  bool& Down(RebaRegion region, int index);

  std::array<std::array<bool, kMostRibbons>, kRebaRegionCount> down_{};
  std::array<std::array<bool, kMostChecks>, kRebaRegionCount> checked_{};
  int loadLevel_ = kNothingChosen;
  int coupling_ = kNothingChosen;
};

}  // namespace halvane
