#include <cstdlib>

#include "reporter/freed_memory.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace halvane {

void KeepFreedMemory() {
#if defined(__GLIBC__)
  constexpr int kMostKept = 2 << 20;
  mallopt(M_TRIM_THRESHOLD, kMostKept);
#endif
}

}  // namespace halvane
