#pragma once

#include <array>

#include "tools/posture/posture_rows.h"

namespace halvane {

/// A tool with one control of every kind, on fields of the job that are free for it.
enum class Small {
  Ribbons,
  AddOn,
  Pair,
  Knees,
  Lone,
  FirstCounted,
  SecondCounted,
  Strict,
  Lenient,
  LastOf,
  List
};
inline constexpr std::size_t kSmallCount = 11;

// clang-format off
inline constexpr std::array kSmallRibbons{
    PostureChoice{"Low ", "low tip",  "pictures/low",  3},
    PostureChoice{"High", "high tip", "pictures/high", 7},
    PostureChoice{"Bent", "bent tip", "pictures/bent", 2},
};
inline constexpr std::array kSmallPairs{
    PostureChoice{"Stands",  {}, {}, 1},
    PostureChoice{"Sits",    {}, {}, 5},
    PostureChoice{"Bends",   {}, {}, 1},
    PostureChoice{"Kneels",  {}, {}, 4},
};
inline constexpr std::array kSmallLone{PostureChoice{"Held", {}, {}, -1}};
inline constexpr std::array kSmallCounted{
    PostureChoice{"Long",  {}, {}, 1},
    PostureChoice{"Often", {}, {}, 1},
};
inline constexpr std::array kSmallStrict{PostureChoice{"a", {}, {}, 4}, PostureChoice{"b", {}, {}, 8}};
inline constexpr std::array kSmallLenient{PostureChoice{"c", {}, {}, 4}, PostureChoice{"d", {}, {}, 8}};
inline constexpr std::array kSmallLastOf{PostureChoice{"e", {}, {}, 4}, PostureChoice{"f", {}, {}, 8}};
inline constexpr std::array kSmallList{PostureChoice{"g", "tip", {}, 4}, PostureChoice{"h", "tip", {}, 8}};

constexpr JobInteger SmallState(int element) { return {&JobState::RebaControlState, element}; }

inline constexpr std::array<PostureControl, kSmallCount> kSmall{{
    {PostureKind::Ribbons,    "Ribbon",    kSmallRibbons, 0, 2, SmallState(0), 0, OtherSaved::Fails,     {&JobState::RulaUpperArmFactors, 2}},
    {PostureKind::AddOns,     "Ribbon",    kSmallRibbons, 2, 1, SmallState(1), 1, OtherSaved::SetsNone,  {&JobState::RulaUpperArmFactors, 3}},
    {PostureKind::Ribbons,    "Pair",      kSmallPairs,   0, 2, SmallState(2), 1, OtherSaved::SetsFirst, {&JobState::RulaNeckFactors, 0}},
    {PostureKind::AddOns,     "Pair",      kSmallPairs,   2, 2, SmallState(10), 1, OtherSaved::SetsNone, {&JobState::RulaNeckFactors, 1}},
    {PostureKind::Box,        "Lone",      kSmallLone,    0, 1, SmallState(3), 1, OtherSaved::SetsNone,  {&JobState::RulaLegFactor}},
    {PostureKind::CountedBox, "Counted(0)", kSmallCounted, 0, 1, SmallState(4), 1, OtherSaved::SetsNone,  {&JobState::RulaMuscleFactor}},
    {PostureKind::CountedBox, "Counted(1)", kSmallCounted, 1, 1, SmallState(5), 1, OtherSaved::SetsNone,  {&JobState::RulaMuscleFactor}},
    {PostureKind::Options,    "Strict",    kSmallStrict,  0, 2, SmallState(6), 0, OtherSaved::Fails,     {&JobState::RulaWristFactors, 1}},
    {PostureKind::Options,    "Lenient",   kSmallLenient, 0, 2, SmallState(7), 0, OtherSaved::SetsNone,  {&JobState::RulaForceFactor}},
    {PostureKind::Options,    "LastOf",    kSmallLastOf,  0, 2, SmallState(8), 0, OtherSaved::SetsLast,  {&JobState::RulaWristTwistFactor}},
    {PostureKind::List,       "List",      kSmallList,    0, 2, SmallState(9), 0, OtherSaved::Fails,     {&JobState::RebaCouplingFactor}},
}};
// clang-format on
static_assert(AreWellFormed(kSmall));

inline const PostureControl& RowOf(Small control) {
  return kSmall.at(static_cast<std::size_t>(control));
}

}  // namespace halvane
