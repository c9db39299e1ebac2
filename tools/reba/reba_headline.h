#pragma once

#include "tools/headline.h"

namespace halvane {

extern const ToolHeadline kRebaHeadline;

}  // namespace halvane
