#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Whether `bytes` is well-formed UTF-8 (shortest forms, no surrogates).
bool IsUtf8(std::string_view bytes);

/// Appends a character, which has to be no surrogate, as UTF-8.
void AppendUtf8(std::string& text, char32_t codePoint);

/// How many characters (code points) the UTF-8 `text` has.
std::size_t CharacterCount(std::string_view text);

/// The first `count` characters of the UTF-8 `text`, all of it where it has no more.
std::string FirstCharacters(std::string_view text, std::size_t count);

/// The text of a job file as UTF-8. Bytes that are well-formed UTF-8 are taken as such, all others
/// as Windows-1252; its five unassigned bytes stand for the control characters of the same number,
/// so that every byte reads as something.
std::string DecodeJobText(std::string bytes);

/// The bytes of a job file for UTF-8 `text`: Windows-1252, or UTF-8 where that code page cannot
/// hold the text or where its bytes would be taken for UTF-8 when read back. `DecodeJobText` gives
/// `text` again.
std::string EncodeJobText(std::string text);

}  // namespace halvane
