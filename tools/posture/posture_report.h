#pragma once

#include <initializer_list>
#include <string_view>

#include "core/rich_text.h"
#include "tools/posture/posture_rows.h"

namespace halvane {

/// Writes a line: region, caption of what the saved state of the control names with `behind` after
/// it, factor. Throws `SubscriptOutOfRange` for a state that names nothing.
void WritePosture(RichText& RichTextBox1, std::string_view region, const PostureControl& control,
                  std::string_view behind = {});

/// The same for a control that has the report's own wording, one for each choice: writes a line
/// where the saved state is that of a choice, else nothing. A box that is counted with others has
/// its own score there, since the factor is that of all.
void WriteIfSet(RichText& RichTextBox1, std::string_view region, const PostureControl& control,
                std::initializer_list<std::string_view> wordings);

}  // namespace halvane
