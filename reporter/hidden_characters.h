#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Whether a character of UTF-8 is one that shows nothing of itself and changes how the text around
/// it looks or compares: of no width, or turning the direction of writing.
bool IsHiddenCharacter(std::string_view character);

/// What is shown in its place: "<U+202E>".
std::string EscapeOfCharacter(std::string_view character);

/// The hidden characters of a text, each once, in its order: "U+202E, U+200B". Empty where it has
/// none.
std::string HiddenCharactersIn(std::string_view text);

/// How many bytes the character has that begins with this byte, by the byte alone.
std::size_t LengthByLead(unsigned char lead);

}  // namespace halvane
