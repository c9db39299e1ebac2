#include "reporter/html_writer.h"

#include "reporter/html_report.h"
#include "reporter/html_text.h"

namespace halvane {
namespace {

constexpr std::string_view kStyle =
    R"html(header, article { max-width: 500pt; margin: 18pt auto; padding: 0 9pt; }
h2 { margin: 0 0 8pt; font-size: 11pt; overflow-wrap: anywhere; }
section { margin: 0 0 18pt; padding: 24pt 34pt; background: var(--paper);
  border: 1px solid var(--line); }
.file { margin: 0 0 14pt; padding-bottom: 5pt; border-bottom: 1px solid var(--line);
  color: var(--quiet); font-size: 9pt; }
section:first-of-type .file { display: none; }
h3 { margin: 0; font-size: 12pt; text-align: center; }
h4 { margin: 0; font-size: 10pt; }
h3, h4, thead th { text-decoration: underline; }
p { margin: 0; min-height: 1.3em; white-space: pre-wrap; overflow-wrap: anywhere; tab-size: 0; }
.center { text-align: center; }
.right { text-align: right; }
.failure { font-weight: bold; }
.column { display: inline-block; box-sizing: border-box; padding-right: 4pt; }
table { width: 100%; }
caption { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%);
  white-space: nowrap; user-select: none; }
th, td { padding: 1pt 8pt 1pt 0; }
th:first-child { width: 29%; }
tbody th, td { white-space: pre-wrap; }
svg { max-width: 100%; height: auto; }
@media (max-width: 480pt) {
  section { padding: 12pt; }
}
@media print {
  body { line-height: 1.2; }
  header, article { max-width: none; margin: 0; padding: 0; }
  section { margin: 0; padding: 0; border: 0; }
  article, section { break-before: page; }
  article:first-of-type, section:first-of-type { break-before: auto; }
  h2 { margin: 3pt 0 9pt; }
  h2, h3, h4, thead { break-after: avoid; }
  p { orphans: 1; widows: 1; }
  svg { width: auto; max-height: 65mm; }
  caption { display: none; }
}
)html";

constexpr std::string_view kFailureTag = "<p class=\"failure\">";

void BeginSection(std::string& out, std::string_view file) {
  out += "<section>\n<p class=\"file\">";
  AppendHtml(out, file);
  out += "</p>\n";
}

void EndSection(std::string& out) { out += "</section>\n"; }

void AppendSentence(std::string& out, std::string_view openingTag, const ReportFailure& failure) {
  out += openingTag;
  AppendHtml(out, failure.message);
  out += "</p>\n";
}

}  // namespace

void HtmlWriter::Begin(std::string& out) {
  AppendPageHead(out, "Halvane Tools job reports", kStyle);
}

void HtmlWriter::BeginJob(std::string& out, std::string_view file) {
  out += "<article>\n<h2>";
  AppendHtml(out, file);
  out += "</h2>\n";
}

void HtmlWriter::EndJob(std::string& out) { out += "</article>\n"; }

void HtmlWriter::Report(std::string& out, std::string_view file, const ToolRow& tool,
                        const RichText& report, const std::vector<WorkingValue>& /*results*/) {
  BeginSection(out, file);
  AppendReportHtml(out, report, tool.title);
  EndSection(out);
}

void HtmlWriter::NoReport(std::string& out, std::string_view file, const ToolRow& tool,
                          const ReportFailure& reason) {
  BeginSection(out, file);
  AppendReportHeading(out, tool.title);
  AppendSentence(out, "<p>", reason);
  EndSection(out);
}

void HtmlWriter::ToolFailed(std::string& out, std::string_view file, const ToolRow& tool,
                            const ReportFailure& failure) {
  BeginSection(out, file);
  AppendReportHeading(out, tool.title);
  AppendSentence(out, kFailureTag, failure);
  EndSection(out);
}

void HtmlWriter::FileFailed(std::string& out, std::string_view file,
                            std::span<const ToolRow* const> /*tools*/,
                            const ReportFailure& failure) {
  BeginJob(out, file);
  out += "<section>\n";
  AppendSentence(out, kFailureTag, failure);
  EndSection(out);
  EndJob(out);
}

void HtmlWriter::End(std::string& out) { out += kPageFoot; }

}  // namespace halvane
