#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/integer.h"
#include "core/rich_text.h"

namespace halvane {

// What the reports of several tools have alike.

inline constexpr CharacterFormat kTitle{.size = 12, .bold = true, .underline = true};
inline constexpr CharacterFormat kHeading{.size = 10, .bold = true, .underline = true};
inline constexpr CharacterFormat kPlain{.size = 10, .bold = false, .underline = false};

/// Puts tab stops, in twips, in force in place of those before.
void SetStops(RichText& RichTextBox1, std::span<const int> stops);

/// A score of whole numbers as it stands in tables.
std::string Whole(Integer score);

/// "Hand: Right Side" or "Hand: Left Side".
std::string_view HandLine();

/// Appends analyst, job name and workstation, a line each.
void AppendNames(RichText& RichTextBox1);

/// Appends the names, a blank line, the hand and the end of its line.
void AppendIdentification(RichText& RichTextBox1);

}  // namespace halvane
