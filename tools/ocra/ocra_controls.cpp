#include "tools/ocra/ocra_controls.h"

#include <algorithm>
#include <cmath>

#include "core/checked_array.h"
#include "core/job_state.h"
#include "core/task_list.h"

namespace halvane {
namespace {

constexpr auto kNo = kOcraNoPair;
using Region = OcraRegion;

constexpr TaggedField JobState::*kGrip = nullptr;
constexpr auto kElbowRotation = &JobState::OcraElbowRotation;
constexpr auto kElbowFlexion = &JobState::OcraElbowFlexion;
constexpr auto kWristDeviation = &JobState::OcraWristDeviation;
constexpr auto kWristFlexion = &JobState::OcraWristFlexion;

constexpr std::array kElbowLists{6, 7, 8, 9};
constexpr std::array kWristLists{10, 11, 12, 13};
constexpr std::array kGripLists{0, 1, 2, 3, 4, 5};
constexpr std::array kElbowTicks{4};
constexpr std::array kWristTicks{0, 1};
constexpr std::array kGripTicks{2, 3};

int NearestPosition(double value) {
  return static_cast<int>(std::nearbyint(std::clamp(value, 0.0, double{kOcraSliderEnd})));
}

}  // namespace

// The scores are uneven on purpose: supination and wrist extension count double their partners, and
// the wide grip counts little and feeds a multiplier of its own.
// clang-format off
constexpr std::array<OcraList, kOcraListCount> kOcraLists{{
    // region,      caption,                          scores by answer,  pair, field
    {Region::Grip,  "Tight Grip (1.5 cm or 3/5 in)", {2, 4,  6, 0}, kNo, kGrip},            //  0
    {Region::Grip,  "Pinch Grip",                    {3, 6,  9, 0}, kNo, kGrip},            //  1
    {Region::Grip,  "Palmar Grip",                   {4, 8, 12, 0}, kNo, kGrip},            //  2
    {Region::Grip,  "Hook Grip",                     {4, 8, 12, 0}, kNo, kGrip},            //  3
    {Region::Grip,  "Keying",                        {4, 8, 12, 0}, kNo, kGrip},            //  4
    {Region::Grip,  "Wide Grip",                     {1, 2,  3, 0}, kNo, kGrip},            //  5
    {Region::Elbow, "Supination (>60 deg)",          {4, 8, 12, 0},   7, kElbowRotation},   //  6
    {Region::Elbow, "Pronation (>60 deg)",           {2, 4,  6, 0},   6, kElbowRotation},   //  7
    {Region::Elbow, "Flexion (>60 deg)",             {2, 4,  6, 0},   9, kElbowFlexion},    //  8
    {Region::Elbow, "Extension (>60 deg)",           {2, 4,  6, 0},   8, kElbowFlexion},    //  9
    {Region::Wrist, "Ulnar Deviation (>15 deg)",     {2, 4,  6, 0},  11, kWristDeviation},  // 10
    {Region::Wrist, "Radial Deviation (>15 deg)",    {2, 4,  6, 0},  10, kWristDeviation},  // 11
    {Region::Wrist, "Flexion (>45 deg)",             {2, 4,  6, 0},  13, kWristFlexion},    // 12
    {Region::Wrist, "Extension (>45 deg)",           {4, 8, 12, 0},  12, kWristFlexion},    // 13
}};

// "cyle" is spelled so on purpose.
constexpr std::array<OcraTick, kOcraTickCount> kOcraTicks{{
    // region,      caption,
    //     field
    {Region::Wrist, "Performs work actions of the same type involving the wrist for at least 50% of the cyle time",
         &JobState::OcraWristActions},
    {Region::Wrist, "Keep the wrist flex/extend (>45 deg) or deviated laterally for at least 50% of cyle/task time",
         &JobState::OcraWristHold},
    {Region::Grip,  "Performs work actions involving the same fingers for at least 50% of the cyle time",
         &JobState::OcraSameFingers},
    {Region::Grip,  "Hold an object in a pinch, palmar, or hook grip for at least 50% of the cyle time",
         &JobState::OcraHoldObject},
    {Region::Elbow, "Performs work gestures of the same type involving the elbow for at least 50% of the cyle",
         &JobState::OcraElbowGesture},
}};

constexpr std::array<OcraFrame, 3> kOcraFrames{{
    {Region::Elbow, "SSFrame3(2)", "Elbow Posture",                 kElbowLists, kElbowTicks},
    {Region::Wrist, "SSFrame3(1)", "Wrist Posture",                 kWristLists, kWristTicks},
    {Region::Grip,  "SSFrame3(0)", "Type Of Grip + Finger Posture", kGripLists, kGripTicks},
}};

constexpr std::array<OcraForceMark, 11> kOcraForceMarks{{
    {"0",   "Nothing At All"},
    {"0.5", "Very Very Weak (Just Noticeable)"},
    {"1.0", "Very Weak"},
    {"1.5", ""},
    {"2.0", "Weak (Light)"},
    {"2.5", ""},
    {"3.0", "Moderate"},
    {"3.5", ""},
    {"4.0", "Somewhat Strong"},
    {"4.5", ""},
    {"5+",  "Strong (Heavy)"},
}};
// clang-format on

namespace {

/// Whether a list and its pair, if any, name each other.
constexpr bool IsPairedRightly(const OcraList& list) {
  if (list.pair == kOcraNoPair) return true;
  const OcraList& pair = kOcraLists.at(static_cast<std::size_t>(list.pair));
  return pair.pair != kOcraNoPair && &kOcraLists.at(static_cast<std::size_t>(pair.pair)) == &list;
}
/// Whether a frame stands at its region and has lists and boxes of that region alone.
constexpr bool FitsItsPlace(OcraRegion region) {
  const OcraFrame& frame = kOcraFrames.at(static_cast<std::size_t>(region));
  const auto hasRegion = [region](const auto& rows) {
    return [region, &rows](int i) { return rows.at(static_cast<std::size_t>(i)).region == region; };
  };
  return frame.region == region && std::ranges::all_of(frame.lists, hasRegion(kOcraLists)) &&
         std::ranges::all_of(frame.ticks, hasRegion(kOcraTicks));
}
static_assert(decltype(JobState::OcraComboChoice)::size() == kOcraListCount, "an answer a list");
static_assert(std::ranges::all_of(kOcraLists, IsPairedRightly));
static_assert(FitsItsPlace(Region::Elbow) && FitsItsPlace(Region::Wrist) &&
              FitsItsPlace(Region::Grip));
static_assert(kOcraForceMarks.size() == kOcraSliderEnd + 1, "a mark a place of the slider");

}  // namespace

const OcraBox& OcraTaskBoxAt(int index) {
  for (const OcraBox& box : kOcraTaskBoxes) {
    if (box.index == index) return box;
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

void OcraControls::Load() {
  ChooseHand(Module1.Hand);
  const std::vector<int> tasks = ActiveTasks();
  for (int list = 0; list < kOcraListCount; ++list) {
    CheckedSubscript(Module1.OcraComboChoice.at(list), kOcraAnswers.size());
  }
  for (std::size_t i = 0; i < kOcraTicks.size(); ++i) {
    SetTick(static_cast<int>(i), ValueIn(kOcraTicks[i].field) == kOcraTicked);
  }
  if (!tasks.empty()) TaskShown(tasks.front());
}

void OcraControls::SetTick(int index, bool ticked) {
  const std::size_t at = CheckedSubscript(index, ticked_.size());
  if (ticked_[at] == ticked) return;
  ticked_[at] = ticked;
  Module1.JobDirty = kTrue;
  StoreOnScreen(kOcraTicks[at].field, ticked ? kOcraTicked : Integer{0});
}

bool OcraControls::IsTicked(int index) const {
  return ticked_[CheckedSubscript(index, ticked_.size())];
}

void OcraControls::PickAnswer(int list, int answer) {
  Module1.JobDirty = kTrue;
  CheckedSubscript(answer, kOcraAnswers.size());
  Module1.OcraComboChoice.at(list) = static_cast<Integer>(answer);
  const int pair = kOcraLists[CheckedSubscript(list, kOcraLists.size())].pair;
  if (pair != kOcraNoPair && answer != kOcraNotApplicable) {
    Module1.OcraComboChoice.at(pair) = kOcraNotApplicable;
  }
}

void OcraHoursMoved(int sliderValue) {
  Module1.JobDirty = kTrue;
  Module1.OcraRecoveryHours = static_cast<Integer>(sliderValue);
}

int OcraForceMoved(int sliderValue) {
  Module1.JobDirty = kTrue;
  const std::optional<int> task = TaskOnScreen();
  if (!task) return 0;
  Module1.OcraForceRating.at(*task) = OcraRatingAt(sliderValue);
  return sliderValue;
}

bool OcraEverHadTasks() { return Module1.TaskCount.AsDouble() > 0; }

std::optional<bool> OcraShowsTaskFrames() {
  if (!OcraEverHadTasks()) return std::nullopt;
  return AnyActiveTask();
}

std::string OcraRatingText(int sliderValue) {
  return Format(sliderValue / 2.0, Pattern::OneDecimal);
}

double OcraRatingAt(int sliderValue) { return ReadsAs(OcraRatingText(sliderValue)); }

int OcraSliderAt(double rating) { return NearestPosition(2 * rating); }

int OcraRecoverySliderAt(double hours) { return NearestPosition(hours); }

}  // namespace halvane
