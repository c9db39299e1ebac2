#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "core/integer.h"
#include "tools/hand_controls.h"

namespace halvane {

/// The arrays of ribbons: upper arms, lower arms, wrist, neck, trunk.
enum class RulaRibbonArray { SSRibbon1, SSRibbon2, SSRibbon3, SSRibbon4, SSRibbon5 };
/// The arrays of boxes: upper arms, neck, trunk, muscle use.
enum class RulaCheckArray { SSCheck1, SSCheck2, SSCheck3, SSCheck4 };
/// The arrays of options: leg, force or load, wrist twist.
enum class RulaOptionArray { SSOption1, SSOption3, SSOption4 };

/// A picture ribbon.
struct RulaRibbon {
  std::string_view caption;  ///< trailing blanks included, which the report keeps
  std::string_view toolTip;
  std::string_view picture;  ///< asset name
  Integer score;             ///< what it puts into its factor when pressed
};
/// An array of ribbons, each at its index. The first `groupSize` are a group of which one is down;
/// a ribbon behind them stands by itself, up or down.
struct RulaRibbonRow {
  std::string_view objectName;  ///< without the index
  std::span<const RulaRibbon> ribbons;
  int groupSize;
  int state;       ///< element of `RulaControlState` with the index of the group's ribbon
  int addOnState;  ///< element of the ribbon by itself; `kRulaNoState` where there is none
  [[nodiscard]] bool hasAddOn() const { return static_cast<int>(ribbons.size()) > groupSize; }
};
inline constexpr int kRulaNoState = -1;
const RulaRibbonRow& RulaRibbonsOf(RulaRibbonArray array);

/// A tick box.
struct RulaCheck {
  std::string_view caption;
  int state;      ///< element of `RulaControlState`
  Integer score;  ///< what it adds when checked
};
/// An array of tick boxes, each at its index.
struct RulaCheckRow {
  std::string_view objectName;  ///< without the index
  std::span<const RulaCheck> checks;
};
const RulaCheckRow& RulaChecksOf(RulaCheckArray array);

/// An option.
struct RulaOption {
  std::string_view caption;
  Integer score;  ///< what it puts into its factor when chosen
};
/// An array of options, each at its index.
struct RulaOptionRow {
  std::string_view objectName;  ///< without the index
  std::span<const RulaOption> options;
  int state;  ///< element of `RulaControlState` with the index of the chosen one
};
const RulaOptionRow& RulaOptionsOf(RulaOptionArray array);

/// A frame of the form and the arrays in it.
struct RulaFrame {
  std::string_view caption;
  std::optional<RulaRibbonArray> ribbons;
  std::optional<RulaCheckArray> checks;
  std::optional<RulaOptionArray> options;
  std::string_view panelCaption;  ///< of a panel around the options; empty where there is none
};
/// In the order of the screen.
extern const std::array<RulaFrame, 8> kRulaFrames;

/// The highest value that the controls store in an element of `RulaControlState`; the lowest is 0.
/// Throws `SubscriptOutOfRange`.
int RulaHighestState(int element);

/// The caption of a ribbon or an option. Throws `SubscriptOutOfRange` for an index without one.
std::string_view RulaCaption(RulaRibbonArray array, int index);
std::string_view RulaCaption(RulaOptionArray array, int index);

/// The two-state controls of the RULA form without a screen: which are set, and the setters that
/// their events run. A new object is the form as designed, with nothing down, checked or chosen.
class RulaControls : public HandControls {
 public:
  static constexpr int kNone = -1;

  RulaControls() : HandControls(kNoHand) {}

  /// Puts every control back to its design state; runs no setter.
  void Reset() { *this = RulaControls(); }

  /// What the form's load does to them: sets what `RulaControlState` tells, each with its setter. A
  /// box that is clear there runs none, so its factor keeps what the job before gave it. Throws
  /// `SubscriptOutOfRange` at the step of a hand or a ribbon that there is not.
  void Load();

  /// The user, or the load, presses a ribbon. One that is down stays as it is. Throws
  /// `SubscriptOutOfRange` for an index that names no ribbon; so the others below.
  void PressRibbon(RulaRibbonArray array, int index);
  /// The user lets up a ribbon that stands by itself. Of a group one is always down, so its ribbons
  /// stay as they are.
  void ReleaseRibbon(RulaRibbonArray array, int index);
  /// The user, or the load, sets a box. One that is so already stays as it is.
  void SetCheck(RulaCheckArray array, int index, bool checked);
  /// The user, or the load, chooses an option. The chosen one stays as it is.
  void ChooseOption(RulaOptionArray array, int index);

  [[nodiscard]] bool IsDown(RulaRibbonArray array, int index) const;
  [[nodiscard]] bool IsChecked(RulaCheckArray array, int index) const;
  /// The index of the chosen option; `kNone` while there is none.
  [[nodiscard]] int chosen(RulaOptionArray array) const;

 private:
  static constexpr std::size_t kMostRibbons = 6;
  static constexpr std::size_t kMostChecks = 3;

  void LoadRibbons(RulaRibbonArray array);
  void LoadChecks(RulaCheckArray array);

  std::array<std::array<bool, kMostRibbons>, 5> down_{};
  std::array<std::array<bool, kMostChecks>, 4> checked_{};
  std::array<int, 3> chosen_{kNone, kNone, kNone};
};

}  // namespace halvane
