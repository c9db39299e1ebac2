#pragma once

#include <malloc.h>
#include <unistd.h>

#include <cstddef>
#include <fstream>

namespace halvane {

/// What the program holds at a moment, in KiB.
struct MemoryHeld {
  long resident = 0;  ///< what the system counts as its pages in memory
  long heap = 0;      ///< what it has asked for and not given back
};

inline MemoryHeld MemoryNow() {
  constexpr std::size_t kKibibyte = 1024;
  // What is free in the heap is no growth, only what the system can't have back.
  malloc_trim(0);
  std::ifstream pages("/proc/self/statm");
  long all = 0;
  long resident = 0;
  pages >> all >> resident;
  const struct mallinfo2 heap = mallinfo2();
  return {resident * (sysconf(_SC_PAGESIZE) / static_cast<long>(kKibibyte)),
          static_cast<long>((heap.uordblks + heap.hblkhd) / kKibibyte)};
}

}  // namespace halvane
