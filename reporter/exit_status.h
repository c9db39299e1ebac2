#pragma once

namespace halvane {

inline constexpr int kAllDone = 0;
inline constexpr int kSomeFailed = 1;  ///< some file, or the output took no more
inline constexpr int kWrongUse = 2;

}  // namespace halvane
