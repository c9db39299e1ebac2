#pragma once

#include <new>

#include "core/runtime_failure.h"

namespace halvane {

/// Runs a command that ends without a word on every failure. True when it came to its end.
template <typename Command>
bool Silently(const Command& command) {
  try {
    command();
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace halvane
