#pragma once

#include <cstdint>

namespace halvane {

/// Makes `Module1` a job with a value in every field, the same one each time for a number: of a
/// choice one that its control stores, else a number of any size.
void MakeVariedJob(std::uint32_t number);

}  // namespace halvane
