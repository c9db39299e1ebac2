#pragma once

namespace halvane {

/// The program's name as messages, windows and the desktop show it.
inline constexpr auto kProgramTitle = "Halvane Tools";
inline constexpr auto kMaker = "Ostrel";
inline constexpr auto kMadeBy = "Made by Ostrel";

}  // namespace halvane
