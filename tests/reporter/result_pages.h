#pragma once

#include <string>

namespace halvane {

// What is written about the lines of `--format json` for those who read them, from the tools' own
// tables, so that no name, unit or member is missing there.

/// The JSON Schema of a line.
std::string JsonSchema();

/// The page on the results of each tool: name, unit and meaning.
std::string ResultPage();

}  // namespace halvane
