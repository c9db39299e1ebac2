#include "tools/strain_index/si_controls.h"

#include <algorithm>

#include "core/checked_array.h"

namespace halvane {
namespace {

constexpr std::array kDurationBoxes{
    // index, label, field
    SiBox{8, "Duration per Day (hour):", &JobState::JobDurationPerDay},
};
constexpr std::array kExertionBoxes{
    SiBox{0, "Duration of all exertion (min.):", &JobState::SiExertionMinutes},
    SiBox{1, "Total Observation time (min.):", &JobState::SiDutyObservationMinutes},
};
constexpr std::array kEffortBoxes{
    SiBox{2, "Number of exertions:", &JobState::SiExertionCount},
    SiBox{3, "Total Observation time (min.):", &JobState::SiEffortObservationMinutes},
};

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
    // array, name, caption, columns, pick, rating
    SiFrame{SiRibbonArray::SSRibbon1, "SSRibbon1", "Intensity of Exertion", kIntensityColumns,
            &JobState::SiIntensityPick, &JobState::SiIntensityRating},
    SiFrame{SiRibbonArray::SSRibbon2, "SSRibbon2", "Hand/Wrist Posture (degrees)", kPostureColumns,
            &JobState::SiPosturePick, &JobState::SiPostureRating},
    SiFrame{SiRibbonArray::SSRibbon3, "SSRibbon3", "Speed of Work", kSpeedColumns,
            &JobState::SiSpeedPick, &JobState::SiSpeedRating},
};
static_assert(std::ranges::equal(kFrames, kSiRibbonArrays, {}, &SiFrame::array),
              "a frame stands at the number of its array");

constexpr std::size_t Row(SiRibbonArray array) { return static_cast<std::size_t>(array); }
static_assert(std::ranges::all_of(kSiRibbonArrays,
                                  [](SiRibbonArray array) {
                                    return kSiRibbonArrays.at(Row(array)) == array;
                                  }),
              "an array stands at its number");

}  // namespace

constexpr std::array<SiNumberFrame, 3> kSiNumberFrames{{
    {"Task Duration", kDurationBoxes},
    {"Duration of Exertion", kExertionBoxes},
    {"Efforts per Minute", kEffortBoxes},
}};

const SiBox& SiBoxAt(int index) {
  for (const SiNumberFrame& frame : kSiNumberFrames) {
    for (const SiBox& box : frame.boxes) {
      if (box.index == index) return box;
    }
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

const SiFrame& SiFrameOf(SiRibbonArray array) { return kFrames[Row(array)]; }

void SiControls::Load() {
  ChooseHand(Module1.Hand);
  for (const SiFrame& frame : kFrames) {
    PressRibbon(frame.array, ToInteger(ValueIn(frame.pick)));
  }
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
  StoreNumber(SiFrameOf(array).pick, 0, static_cast<Integer>(index));
  if (!pressed) return;
  const int row = index % kSiRatings;
  for (int other = row; other < SiFrameOf(array).ribbonCount(); other += kSiRatings) {
    PressRibbon(array, other);
  }
  Module1.*SiFrameOf(array).rating = static_cast<Integer>(row + 1);
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
