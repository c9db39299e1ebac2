#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Whether `bytes` is well-formed UTF-8 (shortest forms, no surrogates).
bool IsUtf8(std::string_view bytes);

/// How many of `bytes` stand before a character of UTF-8 that they end in the middle of: all of
/// them where there is none.
std::size_t WholeCharacters(std::string_view bytes);

/// Appends a character, which has to be no surrogate, as UTF-8.
void AppendUtf8(std::string& text, char32_t codePoint);

/// How many characters (code points) the UTF-8 `text` has.
std::size_t CharacterCount(std::string_view text);

/// The first `count` characters of the UTF-8 `text`, all of it where it has no more.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

/// The text of a job file as UTF-8. Bytes that are well-formed UTF-8 are taken as such, all others
/// as Windows-1252; its five unassigned bytes stand for the control characters of the same number,
/// so that every byte reads as something.
std::string DecodeJobText(std::string bytes);

/// Windows-1252 as UTF-8, as `DecodeJobText` takes it, and how many bytes that makes.
void AppendFromWindows1252(std::string& text, std::string_view bytes);
std::size_t Utf8SizeOfWindows1252(std::string_view bytes);

/// The bytes of a job file for UTF-8 `text`: Windows-1252, or UTF-8 where that code page cannot
/// hold the text or where its bytes would be taken for UTF-8 when read back. `DecodeJobText` gives
/// `text` again.
std::string EncodeJobText(std::string text);

}  // namespace halvane
