#pragma once

#include <string>
#include <string_view>

#include "reporter/failure.h"

namespace halvane {

/// Of the lines. It counts up when a member goes or means something else, not when one is added.
inline constexpr int kJsonVersion = 1;

/// Appends the opening of a line about a job file: `version` and `file`.
void BeginJsonLine(std::string& out, std::string_view file);

/// Appends a text in quotes. What is no well-formed UTF-8, as a file name can be, comes out as
/// U+FFFD.
void AppendJsonString(std::string& out, std::string_view text);

/// Appends the opening of a member: its name, which needs no escapes, and the colon.
void AppendJsonName(std::string& out, std::string_view name);

void AppendJsonBoolean(std::string& out, bool value);

/// Appends a number that reads back as the same double.
void AppendJsonNumber(std::string& out, double value);

/// Appends an object with `kind` and `message`, and with `line`, `field`, `value` and `reason`,
/// each null where it is not known.
void AppendJsonFailure(std::string& out, const ReportFailure& failure);

/// Appends `[...]` or `{...}` with a comma between what `append` makes of each element.
template <typename Range, typename Append>
void AppendJsonList(std::string& out, char open, char close, const Range& elements,
                    const Append& append) {
  out += open;
  bool isFirst = true;
  for (const auto& element : elements) {
    if (!isFirst) out += ',';
    isFirst = false;
    append(element);
  }
  out += close;
}

}  // namespace halvane
