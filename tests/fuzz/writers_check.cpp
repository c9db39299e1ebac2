#include "tests/fuzz/writers_check.h"

#include <algorithm>
#include <vector>

#include "core/job_text_encoding.h"
#include "reporter/job_reports.h"
#include "reporter/summary_command.h"
#include "tests/fuzz/memory_file.h"
#include "tests/fuzz/output_shape.h"

namespace halvane {
namespace {

/// A name that no format has a plain place for.
constexpr const char* kName = "=\"<b>,;\n\xE2\x80\xAE\xFF.qjt";

std::vector<const ToolRow*> AllTools() {
  std::vector<const ToolRow*> tools;
  for (const ToolRow& tool : Tools()) tools.push_back(&tool);
  return tools;
}

std::string OutputOf(JobCommand&& command, const JobSource& job) {
  std::string out;
  command.Begin(out);
  command.Do(out, job);
  while (command.End(out)) {
  }
  return out;
}

std::string ReportsOf(const JobSource& job, ReportFormat format) {
  return OutputOf(ReportCommand(AllTools(), LengthUnit::Metric, format, true), job);
}

std::string SummaryOf(const JobSource& job, ReportFormat format) {
  return OutputOf(SummaryCommand(AllTools(), LengthUnit::English, format, nullptr), job);
}

/// A text in which no tag stands, and nothing else is another.
std::string WithoutTags(std::string_view text) {
  std::string changed(text);
  std::ranges::replace(changed, '<', '(');
  std::ranges::replace(changed, '>', ')');
  return changed;
}

/// No text of a job or its name makes a tag: with other characters in their places the page has
/// the same tags.
template <typename PageOf>
std::string ProblemOfPage(std::string_view bytes, const std::string& path, const PageOf& pageOf) {
  const MemoryFile tame(WithoutTags(bytes));
  const std::string page = pageOf(JobSource(kName, path));
  if (!IsUtf8(page)) return "the page is no UTF-8";
  const std::string expected = TagsOf(pageOf(JobSource(WithoutTags(kName), tame.path())));
  return TagsOf(page) == expected ? "" : "a text makes a tag of the page: " + page;
}

}  // namespace

std::string ProblemOfWriters(std::string_view bytes) {
  const MemoryFile file(bytes);
  const JobSource job(kName, file.path());
  std::string problem = TerminalProblem(ReportsOf(job, ReportFormat::Text));
  if (problem.empty()) problem = TerminalProblem(SummaryOf(job, ReportFormat::Text));
  if (problem.empty()) problem = JsonLinesProblem(ReportsOf(job, ReportFormat::Json));
  if (problem.empty()) problem = JsonLinesProblem(SummaryOf(job, ReportFormat::Json));
  if (problem.empty()) problem = CsvProblem(SummaryOf(job, ReportFormat::Csv));
  for (const auto& pageOf : {ReportsOf, SummaryOf}) {
    if (!problem.empty()) return problem;
    problem = ProblemOfPage(bytes, file.path(), [&pageOf](const JobSource& source) {
      return pageOf(source, ReportFormat::Html);
    });
  }
  return problem;
}

}  // namespace halvane
