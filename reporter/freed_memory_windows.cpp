#include "reporter/freed_memory.h"

namespace halvane {

// The heap of this system keeps what is freed.
void KeepFreedMemory() {}

}  // namespace halvane
