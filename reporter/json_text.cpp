#include "reporter/json_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "core/number_text.h"
#include "reporter/file_text.h"

namespace halvane {
namespace {

// Lines are put together directly, since building a tree of values for each file takes several
// times as long as reading the file. The library writes what needs thought: doubles, and characters
// beyond the common ones.

/// What the library makes of a value, text that is no well-formed UTF-8 replaced.
template <typename T>
std::string ByLibrary(const T& value) {
  using nlohmann::json;
  return json(value).dump(-1, ' ', false, json::error_handler_t::replace);
}

bool IsCommon(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

/// The escape of the other characters that reports are full of.
std::string_view EscapeOf(char c) {
  switch (c) {
    case '\r': return "\\r";
    case '\n': return "\\n";
    case '\t': return "\\t";
    case '"': return "\\\"";
    case '\\': return "\\\\";
    default: return {};
  }
}

void AppendKnown(std::string& out, std::string_view text, bool isKnown) {
  if (isKnown) {
    AppendJsonString(out, text);
  } else {
    out += "null";
  }
}

}  // namespace

void BeginJsonLine(std::string& out, std::string_view file) {
  out += "{\"version\":" + PlainText(kJsonVersion) + ",\"file\":";
  AppendJsonString(out, EscapedFileName(file));
}

void AppendJsonString(std::string& out, std::string_view text) {
  out += '"';
  while (!text.empty()) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), IsCommon);
    out.append(text.begin(), end);
    text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
    if (text.empty()) break;
    const std::string_view escape = EscapeOf(text.front());
    if (escape.empty()) {
      const std::string rest = ByLibrary(text);
      out.append(rest, 1, rest.size() - 2);  // without its quotes
      break;
    }
    out += escape;
    text.remove_prefix(1);
  }
  out += '"';
}

void AppendJsonName(std::string& out, std::string_view name) {
  out += '"';
  out += name;
  out += "\":";
}

void AppendJsonBoolean(std::string& out, bool value) { out += value ? "true" : "false"; }

void AppendJsonNumber(std::string& out, double value) { out += ByLibrary(value); }

void AppendJsonFailure(std::string& out, const ReportFailure& failure) {
  out += "{\"kind\":";
  AppendJsonString(out, failure.kind);
  out += ",\"message\":";
  AppendJsonString(out, failure.message);
  const ReportFailure::Place place = failure.place.value_or(ReportFailure::Place{});
  out += ",\"line\":" + (place.line > 0 ? PlainText(place.line) : "null") + ",\"field\":";
  AppendKnown(out, place.field, failure.place.has_value());
  out += ",\"value\":";
  AppendKnown(out, place.value, failure.place.has_value());
  out += ",\"reason\":";
  AppendKnown(out, place.reason, !place.reason.empty());
  out += '}';
}

}  // namespace halvane
