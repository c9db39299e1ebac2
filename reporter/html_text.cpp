#include "reporter/html_text.h"

#include "reporter/printable_text.h"

namespace halvane {
namespace {

// Paper takes the first set of colours whatever the screen has.
constexpr std::string_view kPageStyle =
    R"html(:root { --ground: #eceff1; --paper: #fff; --ink: #1f2933; --quiet: #52606d; --line: #cfd8dc;
  --failure: #9b1c1c; }
@media screen and (prefers-color-scheme: dark) {
  :root { color-scheme: dark; --ground: #12161b; --paper: #1b2129; --ink: #e4e8ec; --quiet: #a9b4bf;
    --line: #3a4450; --failure: #ff9d94; }
}
@media print {
  :root { --ground: #fff; --ink: #000; --quiet: #000; --failure: #000; --line: #888; }
  @page { margin: 15mm; }
}
body { margin: 0; background: var(--ground); color: var(--ink); font: 10pt/1.3 sans-serif; }
h1 { margin: 0; font-size: 14pt; }
table { border-collapse: collapse; }
th, td { text-align: left; vertical-align: top; overflow-wrap: break-word; }
tbody th { font-weight: normal; }
tr { break-inside: avoid; }
.failure { color: var(--failure); }
)html";

std::string_view EntityOf(char c) {
  switch (c) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    case '\'': return "&#39;";
    default: return {};
  }
}

}  // namespace

void AppendHtml(std::string& out, std::string_view text) {
  for (const char c : PrintableText(text)) {
    const std::string_view entity = EntityOf(c);
    if (entity.empty()) {
      out += c;
    } else {
      out += entity;
    }
  }
}

void AppendPageHead(std::string& out, std::string_view title, std::string_view style) {
  out +=
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>";
  AppendHtml(out, title);
  out += "</title>\n<style>\n";
  out += kPageStyle;
  out += style;
  out += "</style>\n</head>\n<body>\n<header><h1>";
  AppendHtml(out, title);
  out += "</h1></header>\n<main>\n";
}

}  // namespace halvane
