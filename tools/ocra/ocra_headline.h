#pragma once

#include "tools/headline.h"

namespace halvane {

extern const ToolHeadline kOcraHeadline;

}  // namespace halvane
