#pragma once

#include <memory>

#include "core/tool_names.h"

class QWidget;

namespace halvane {

class ToolForm;

/// A new form of a tool, not yet loaded.
std::unique_ptr<ToolForm> MakeToolForm(Tool tool, QWidget* parent);

}  // namespace halvane
