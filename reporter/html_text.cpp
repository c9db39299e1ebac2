#include "reporter/html_text.h"

#include "reporter/printable_text.h"

namespace halvane {
namespace {

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
  out += style;
  out += "</style>\n</head>\n<body>\n";
}

}  // namespace halvane
