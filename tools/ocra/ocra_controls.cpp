#include "tools/ocra/ocra_controls.h"

#include <algorithm>
#include <cmath>

#include "core/checked_array.h"
#include "core/job_state.h"
#include "core/task_list.h"

namespace halvane {
namespace {

constexpr int kHandOptions = 2;
constexpr int kSliderEnd = 10;

constexpr auto kNo = kOcraNoPair;
using Field = OcraScoreField;
using Region = OcraRegion;

constexpr std::array kElbowLists{6, 7, 8, 9};
constexpr std::array kWristLists{10, 11, 12, 13};
constexpr std::array kGripLists{0, 1, 2, 3, 4, 5};
constexpr std::array kElbowTicks{4};
constexpr std::array kWristTicks{0, 1};
constexpr std::array kGripTicks{2, 3};

/// The number in the field of a tick box.
double TickField(int index) {
  switch (index) {
    case 0: return Module1.OcraWristActions.AsDouble();
    case 1: return Module1.OcraWristHold;
    case 2: return Module1.OcraSameFingers.AsDouble();
    case 3: return Module1.OcraHoldObject;
    case 4: return Module1.OcraElbowGesture;
    default: throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
  }
}

void StoreTick(int index, Integer value) {
  switch (index) {
    case 0: Module1.OcraWristActions = value; break;
    case 1: Module1.OcraWristHold = value; break;
    case 2: Module1.OcraSameFingers = value; break;
    case 3: Module1.OcraHoldObject = value; break;
    case 4: Module1.OcraElbowGesture = value; break;
    default: throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
  }
}

int NearestPosition(double value) {
  return static_cast<int>(std::nearbyint(std::clamp(value, 0.0, double{kSliderEnd})));
}

}  // namespace

// The scores are uneven on purpose: supination and wrist extension count double their partners, and
// the wide grip counts little and feeds a multiplier of its own.
// clang-format off
constexpr std::array<OcraList, kOcraListCount> kOcraLists{{
    // region,      caption,                          scores by answer,  pair, field
    {Region::Grip,  "Tight Grip (1.5 cm or 3/5 in)", {2, 4,  6, 0}, kNo, Field::Grip},            //  0
    {Region::Grip,  "Pinch Grip",                    {3, 6,  9, 0}, kNo, Field::Grip},            //  1
    {Region::Grip,  "Palmar Grip",                   {4, 8, 12, 0}, kNo, Field::Grip},            //  2
    {Region::Grip,  "Hook Grip",                     {4, 8, 12, 0}, kNo, Field::Grip},            //  3
    {Region::Grip,  "Keying",                        {4, 8, 12, 0}, kNo, Field::Grip},            //  4
    {Region::Grip,  "Wide Grip",                     {1, 2,  3, 0}, kNo, Field::Grip},            //  5
    {Region::Elbow, "Supination (>60 deg)",          {4, 8, 12, 0},   7, Field::ElbowRotation},   //  6
    {Region::Elbow, "Pronation (>60 deg)",           {2, 4,  6, 0},   6, Field::ElbowRotation},   //  7
    {Region::Elbow, "Flexion (>60 deg)",             {2, 4,  6, 0},   9, Field::ElbowFlexion},    //  8
    {Region::Elbow, "Extension (>60 deg)",           {2, 4,  6, 0},   8, Field::ElbowFlexion},    //  9
    {Region::Wrist, "Ulnar Deviation (>15 deg)",     {2, 4,  6, 0},  11, Field::WristDeviation},  // 10
    {Region::Wrist, "Radial Deviation (>15 deg)",    {2, 4,  6, 0},  10, Field::WristDeviation},  // 11
    {Region::Wrist, "Flexion (>45 deg)",             {2, 4,  6, 0},  13, Field::WristFlexion},    // 12
    {Region::Wrist, "Extension (>45 deg)",           {4, 8, 12, 0},  12, Field::WristFlexion},    // 13
}};

// "cyle" is spelled so on purpose.
constexpr std::array<OcraTick, kOcraTickCount> kOcraTicks{{
    {Region::Wrist, "Performs work actions of the same type involving the wrist for at least 50% of the cyle time"},
    {Region::Wrist, "Keep the wrist flex/extend (>45 deg) or deviated laterally for at least 50% of cyle/task time"},
    {Region::Grip,  "Performs work actions involving the same fingers for at least 50% of the cyle time"},
    {Region::Grip,  "Hold an object in a pinch, palmar, or hook grip for at least 50% of the cyle time"},
    {Region::Elbow, "Performs work gestures of the same type involving the elbow for at least 50% of the cyle"},
}};

constexpr std::array<OcraFrame, 3> kOcraFrames{{
    {"SSFrame3(2)", "Elbow Posture",               kElbowLists, kElbowTicks},
    {"SSFrame3(1)", "Wrist Posture",               kWristLists, kWristTicks},
    {"SSFrame3(0)", "Type Of Grip + Finger Posture", kGripLists, kGripTicks},
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

void OcraControls::Load() {
  ChooseHand(Module1.Hand);
  const std::vector<int> tasks = ActiveTasks();
  for (int list = 0; list < kOcraListCount; ++list) {
    CheckedSubscript(Module1.OcraComboChoice.at(list), kOcraAnswers.size());
  }
  for (int i = 0; i < kOcraTickCount; ++i) SetTick(i, TickField(i) == kOcraTicked);
  if (!tasks.empty()) Module1.CurrentTask = static_cast<Integer>(tasks.front());
}

void OcraControls::ChooseHand(int index) {
  CheckedSubscript(index, kHandOptions);
  if (hand_ == index) return;
  hand_ = index;
  Module1.JobDirty = kTrue;
  Module1.Hand = static_cast<Integer>(index);
}

void OcraControls::SetTick(int index, bool ticked) {
  bool& state = ticked_[CheckedSubscript(index, ticked_.size())];
  if (state == ticked) return;
  state = ticked;
  Module1.JobDirty = kTrue;
  StoreTick(index, ticked ? kOcraTicked : Integer{0});
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

double OcraRatingAt(int sliderValue) {
  return ReadsAs(Format(sliderValue / 2.0, Pattern::OneDecimal));
}

int OcraSliderAt(double rating) { return NearestPosition(2 * rating); }

int OcraRecoverySliderAt(double hours) { return NearestPosition(hours); }

}  // namespace halvane
