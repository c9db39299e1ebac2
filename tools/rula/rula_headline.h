#pragma once

#include "tools/headline.h"

namespace halvane {

extern const ToolHeadline kRulaHeadline;

}  // namespace halvane
