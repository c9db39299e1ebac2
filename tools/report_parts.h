#pragma once

#include <span>
#include <string_view>

#include "core/rich_text.h"

namespace halvane {

// What the reports of several tools have alike.

/// Puts tab stops, in twips, in force in place of those before.
void SetStops(RichText& RichTextBox1, std::span<const int> stops);

/// "Hand: Right Side" or "Hand: Left Side".
std::string_view HandLine();

/// Appends analyst, job name and workstation, a line each.
void AppendNames(RichText& RichTextBox1);

/// Appends the names, a blank line, the hand and the end of its line.
void AppendIdentification(RichText& RichTextBox1);

}  // namespace halvane
