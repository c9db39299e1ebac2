#include "tools/strain_index/si_controls.h"

#include "core/checked_array.h"
#include "core/job_state.h"

namespace halvane {
namespace {

constexpr int kHandOptions = 2;

// One row a column of ribbons, its captions from rating 1 to rating 5.
constexpr std::array kIntensityColumns{
    SiColumn{"% Maximal Strength", {"< 10%", "10% - 29%", "30% - 49%", "50% - 79%", "> 80%"}},
    SiColumn{"Borg CR-10 Scale", {"< 2", "3", "4 - 5", "6 - 7", "> 7"}},
    SiColumn{"Perceived Effort",
             {"Barely noticeable/relaxed effort", "Noticeable/definite effort",
              "Obvious effort; unchange facial expression",
              "Substantial effort; changes facial expression",
              "Uses shoulder or trunk to generate force"}},
};
constexpr std::array kPostureColumns{
    SiColumn{"Extension", {"0 - 10", "11 - 25", "26 - 40", "41 - 55", "> 60"}},
    SiColumn{"Flexion", {"0 - 5", "6 - 15", "16 - 30", "31 - 50", "> 50"}},
    SiColumn{"Ulnar Deviation", {"0 - 10", "11 - 15", "16 - 20", "21 - 25", "> 25"}},
    SiColumn{
        "Perceived Posture",
        {"Perfect neutral", "Near neutral", "Non-neutral", "Marked Deviation", "Near extreme"}},
};
// The heading of the second column is wanted as it stands, though it tells of pace.
constexpr std::array kSpeedColumns{
    SiColumn{"MTM -1", {"< 80%", "81-90%", "91-100%", "101-115%", "> 115%"}},
    SiColumn{"Perceived Posture",
             {"Extremely relaxed pace", "Taking one's own time", "Normal speed of motion",
              "Rush,but able to keep up", "Rush,unable to keep up"}},
};

constexpr std::array kFrames{
    SiFrame{"SSRibbon1", "Intensity of Exertion", kIntensityColumns},
    SiFrame{"SSRibbon2", "Hand/Wrist Posture (degrees)", kPostureColumns},
    SiFrame{"SSRibbon3", "Speed of Work", kSpeedColumns},
};

constexpr std::size_t Row(SiRibbonArray array) { return static_cast<std::size_t>(array); }

void StorePick(SiRibbonArray array, Integer index) {
  switch (array) {
    case SiRibbonArray::SSRibbon1: Module1.SiIntensityPick = index; break;
    case SiRibbonArray::SSRibbon2: Module1.SiPosturePick = index; break;
    case SiRibbonArray::SSRibbon3: Module1.SiSpeedPick = index; break;
  }
}

void StoreRating(SiRibbonArray array, Integer rating) {
  switch (array) {
    case SiRibbonArray::SSRibbon1: Module1.SiIntensityRating = rating; break;
    case SiRibbonArray::SSRibbon2: Module1.SiPostureRating = rating; break;
    case SiRibbonArray::SSRibbon3: Module1.SiSpeedRating = rating; break;
  }
}

}  // namespace

const SiFrame& SiFrameOf(SiRibbonArray array) { return kFrames[Row(array)]; }

void SiControls::Load() {
  ChooseHand(Module1.Hand);
  PressRibbon(SiRibbonArray::SSRibbon1, ToInteger(Module1.SiIntensityPick.AsDouble()));
  PressRibbon(SiRibbonArray::SSRibbon2, ToInteger(Module1.SiPosturePick.AsDouble()));
  PressRibbon(SiRibbonArray::SSRibbon3, Module1.SiSpeedPick);
}

void SiControls::ChooseHand(int index) {
  CheckedSubscript(index, kHandOptions);
  if (hand_ == index) return;
  hand_ = index;
  Module1.Hand = static_cast<Integer>(index);
  Module1.JobDirty = kTrue;
}

void SiControls::PressRibbon(SiRibbonArray array, int index) {
  bool& down = Down(array, index);
  if (down) return;
  down = true;
  // The column has one ribbon down: the one that goes up runs its handler first.
  const int top = index - index % kSiRatings;
  for (int other = top; other < top + kSiRatings; ++other) {
    if (other == index || !Down(array, other)) continue;
    Down(array, other) = false;
    RibbonClick(array, other, false);
  }
  RibbonClick(array, index, true);
}

void SiControls::RibbonClick(SiRibbonArray array, int index, bool pressed) {
  Module1.JobDirty = kTrue;
  // A ribbon that goes up stores its index too, and so does every ribbon of the row that follows
  // below. The pick ends on whichever was handled last and means no more than a member of the row.
  StorePick(array, static_cast<Integer>(index));
  if (!pressed) return;
  const int row = index % kSiRatings;
  for (int other = row; other < SiFrameOf(array).ribbonCount(); other += kSiRatings) {
    PressRibbon(array, other);
  }
  StoreRating(array, static_cast<Integer>(row + 1));
}

bool SiControls::IsDown(SiRibbonArray array, int index) const {
  const auto count = static_cast<std::size_t>(SiFrameOf(array).ribbonCount());
  return down_[Row(array)][CheckedSubscript(index, count)];
}

bool& SiControls::Down(SiRibbonArray array, int index) {
  const auto count = static_cast<std::size_t>(SiFrameOf(array).ribbonCount());
  return down_[Row(array)][CheckedSubscript(index, count)];
}

}  // namespace halvane
