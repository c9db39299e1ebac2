#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "core/integer.h"
#include "tools/hand_controls.h"
#include "tools/number_field.h"

namespace halvane {

/// The tabs, by index of `SSTab1`. The first blank is wanted.
inline constexpr std::array<std::string_view, 2> kSiTabs{" Task Information", "Strain Index"};
inline constexpr int kSiReportTab = 1;

/// A box for a number: its index of `Text1`, its label and its field.
struct SiBox {
  int index;
  std::string_view label;
  NumberField field;
};
/// A frame of such boxes.
struct SiNumberFrame {
  std::string_view caption;
  std::span<const SiBox> boxes;
};
/// In the order of the screen.
extern const std::array<SiNumberFrame, 3> kSiNumberFrames;
/// The row of `Text1(index)`. Throws `SubscriptOutOfRange` where there is none.
const SiBox& SiBoxAt(int index);

/// The three arrays of ribbons on the form, in the order of the screen.
enum class SiRibbonArray { SSRibbon1, SSRibbon2, SSRibbon3 };

/// Ratings run from 1 to 5; each is one row of ribbons.
inline constexpr int kSiRatings = 5;

/// One column of ribbons: five ratings on one scale. The ribbon of rating r has the index
/// `firstIndex` + r - 1.
struct SiColumn {
  std::string_view heading;
  std::array<std::string_view, kSiRatings> captions;
};

/// One frame of ribbons: its columns are parallel scales that are kept on the same row.
struct SiFrame {
  SiRibbonArray array;
  std::string_view objectName;  ///< of the ribbons, without the index
  std::string_view caption;
  std::span<const SiColumn> columns;  ///< column c holds the indexes 5c to 5c + 4
  NumberField pick;                   ///< index of a ribbon of the row that is down
  Integer JobState::*rating;          ///< 1 to 5

  [[nodiscard]] int ribbonCount() const { return static_cast<int>(columns.size()) * kSiRatings; }
};

/// The frame of an array of ribbons.
const SiFrame& SiFrameOf(SiRibbonArray array);
inline constexpr std::array kSiRibbonArrays{SiRibbonArray::SSRibbon1, SiRibbonArray::SSRibbon2,
                                            SiRibbonArray::SSRibbon3};

/// The two-state controls of the Strain Index form without a screen: which option is chosen, which
/// ribbons are down, and the handlers that their events run. A new object is the form as designed,
/// with nothing chosen or down.
class SiControls : public HandControls {
 public:
  SiControls() : HandControls(kNoHand) {}

  /// Puts every control back to its design state; runs no handler.
  void Reset() { *this = SiControls(); }

  /// What the form's load does to them: chooses the hand and presses the three saved picks, each
  /// with its handlers. Throws `SubscriptOutOfRange` for a saved value that names no control.
  void Load();

  /// The user, or the load, presses a ribbon. One that is down stays as it is. Throws
  /// `SubscriptOutOfRange` for an index that names no ribbon.
  void PressRibbon(SiRibbonArray array, int index);

  [[nodiscard]] bool IsDown(SiRibbonArray array, int index) const;

 private:
  static constexpr std::size_t kMostRibbons = 20;

  void RibbonClick(SiRibbonArray array, int index, bool pressed);
  bool& Down(SiRibbonArray array, int index);

  std::array<std::array<bool, kMostRibbons>, kSiRibbonArrays.size()> down_{};
};

}  // namespace halvane
