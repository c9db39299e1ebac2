#pragma once

#include <string>
#include <string_view>

namespace halvane {

// What is wrong with a text that the program wrote; empty where nothing is. They know nothing of
// the code that writes.

/// Of the lines of JSON: each has to be one object, in well-formed UTF-8.
std::string JsonLinesProblem(std::string_view text);

/// Of a table as RFC 4180 has it: CR LF behind each record, all records with as many fields as the
/// first, quotes in quoted fields alone and doubled there.
std::string CsvProblem(std::string_view text);

/// Of text for a terminal: no control character but line ends, well-formed UTF-8.
std::string TerminalProblem(std::string_view text);

/// The tags of a page, one behind the other with all that stands in them.
std::string TagsOf(std::string_view page);

}  // namespace halvane
