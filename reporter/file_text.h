#pragma once

#include <string>
#include <string_view>

namespace halvane {

// How the name of a file is written for programs, so that they find the file again. A name that is
// UTF-8 stands as it is. A byte that cannot stand there is written as "\x" and two hexadecimal
// digits in capitals, and a backslash in front of an "x" as "\x5C": whoever turns each "\x" and its
// two digits into a byte has the name, whatever it is.

/// The name with the bytes that are no UTF-8 written so.
std::string EscapedFileName(std::string_view name);

/// The same, with control characters written so too, for lines that nothing may break.
std::string EscapedFileNameOnOneLine(std::string_view name);

}  // namespace halvane
