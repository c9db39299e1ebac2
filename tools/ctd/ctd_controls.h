#pragma once

#include <array>
#include <functional>
#include <span>
#include <string_view>

#include "core/tagged_field.h"

namespace halvane {

/// A picture ribbon: its index, which is the code that the job stores, and its caption. The gaps in
/// the indexes are part of the codes.
struct CtdRibbon {
  int index;
  std::string_view caption;  ///< its tool tip and the report's wording too
  std::string_view picture;  ///< asset name
};

/// The four ribbon groups of hand and wrist.
enum class CtdGroup { Grip, Wrist, RadialUlnar, FlexionExtension };

struct CtdGroupRow {
  std::string_view objectName;  ///< of the ribbons, without the index
  std::string_view caption;     ///< of the frame
  std::span<const CtdRibbon> ribbons;
};
/// In the order of the screen, which is that of `CtdGroup`.
extern const std::array<CtdGroupRow, 4> kCtdGroups;

inline constexpr int kCtdSlotCount = 8;

/// One posture slot of a task: a joint and side with its category, load and duration.
struct CtdSlot {
  std::string_view reportLabel;
  std::string_view frameCaption;
  std::string_view objectName;  ///< of the category's ribbons
  std::span<const CtdRibbon> categories;
  /// The slot whose load and duration stand in this slot's frame. The two shoulder pairs are
  /// crossed: the frame of a side shows its own category beside the load and duration of the other,
  /// while the computation joins them by slot number. It is wanted.
  int frameSlot;
};
/// A slot stands at its number.
extern const std::array<CtdSlot, kCtdSlotCount> kCtdSlots;

/// A ribbon of the body-part selector and the two slots whose frames it shows, left side of the
/// screen first.
struct CtdBodyPart {
  std::string_view caption;
  std::string_view picture;
  std::array<int, 2> shownSlots;
};
/// A part stands at its index of `SSRibbon3`.
extern const std::array<CtdBodyPart, 4> kCtdBodyParts;

/// The ribbon of `ribbons` with this index. Throws `SubscriptOutOfRange` where there is none.
const CtdRibbon& CtdRibbonAt(std::span<const CtdRibbon> ribbons, int index);

/// The code that a task has in a group. Throws `Overflow` for one beyond 16 bits.
int CtdCodeOf(CtdGroup group, int task);
/// The category of a slot, 0 where the field is empty.
double CtdCategoryOf(int slot, int task);
/// Stores a category, as a click on its ribbon does.
void StoreCtdCategory(int slot, int task, Integer category);

/// Computes `CtdRestTime` of a task from cycle time, repetitions and work time; never below 0.
void ComputeCtdRestTime(int task);
/// Computes `CtdCyclesPerShift`, unless the cycle time is 0 or less; gives what the box shows.
double ComputeCtdCyclesPerShift();

/// The two-state controls of the CTD form without a screen, and what their events do to the job. A
/// new object is the form as designed: right side, the ribbon with code 0 of every group down, no
/// body part chosen.
class CtdControls {
 public:
  static constexpr int kNoBodyPart = -1;

  /// Puts every control back to its design state; runs no handler.
  void Reset() { *this = CtdControls(); }

  /// What the form's load does to the job, task list included. Tells `shown` of each task whose
  /// codes all name ribbons, while it is the current one. Throws `SubscriptOutOfRange` for a hand
  /// that names no option.
  void Load(const std::function<void(int task)>& shown = [](int) {});

  /// Presses the ribbons of the four groups at the codes of `CurrentTask`. Throws
  /// `SubscriptOutOfRange` at the first code that names no ribbon.
  void PressStoredRibbons();

  /// The user, or the load, chooses a hand. The chosen one stays as it is.
  void ChooseHand(int index);
  /// The user, or the load, presses a ribbon of a group. One that is down stays as it is.
  void PressRibbon(CtdGroup group, int index);
  /// The user presses a ribbon of the body-part selector: its two categories are shown.
  void PressBodyPart(int index);
  /// The user, or `PressBodyPart`, presses the ribbon of a category.
  void PressCategory(int slot, int index);

  [[nodiscard]] int hand() const { return hand_; }
  [[nodiscard]] int bodyPart() const { return bodyPart_; }
  [[nodiscard]] int down(CtdGroup group) const { return down_[static_cast<std::size_t>(group)]; }
  [[nodiscard]] int category(int slot) const { return category_[static_cast<std::size_t>(slot)]; }

 private:
  int hand_ = 0;
  int bodyPart_ = kNoBodyPart;
  std::array<int, 4> down_{};
  std::array<int, kCtdSlotCount> category_{};
};

}  // namespace halvane
