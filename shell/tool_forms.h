#pragma once

#include <memory>

#include "tools/tool_table.h"

class QWidget;

namespace halvane {

class ToolForm;

/// A new form of a tool, not yet loaded.
std::unique_ptr<ToolForm> MakeToolForm(Tool tool, QWidget* parent);

}  // namespace halvane
