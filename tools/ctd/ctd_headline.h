#pragma once

#include "tools/headline.h"

namespace halvane {

extern const ToolHeadline kCtdHeadline;

}  // namespace halvane
