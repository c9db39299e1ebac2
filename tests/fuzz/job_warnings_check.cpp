#include "tests/fuzz/job_warnings_check.h"

#include <algorithm>

#include "core/job_state.h"
#include "reporter/check_command.h"
#include "reporter/job_check.h"
#include "reporter/opened_job.h"
#include "tests/fuzz/memory_file.h"
#include "tests/fuzz/output_shape.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

bool IsTold(const JobCheck& check, const ToolRow& tool) {
  const std::string fails = std::string(tool.key) + " fails";
  return std::ranges::any_of(check.problems, [&fails](const JobProblem& problem) {
    return problem.message.find(fails) != std::string::npos ||
           problem.message.find("every tool") != std::string::npos ||
           problem.message.find("each tool") != std::string::npos;
  });
}

/// The first tool that fails on the job without a word of the check.
std::string SilentFailure(const std::string& path, const JobCheck& check) {
  std::string silent;
  if (OpenAfresh(path, LengthUnit::Metric)) return "the reporter does not open it";
  std::vector<const ToolRow*> tools;
  for (const ToolRow& tool : Tools()) tools.push_back(&tool);
  ForEachTool(tools, [&](const ToolRow& tool, std::size_t /*place*/) {
    const auto failure = Try([&tool]() -> std::optional<ReportFailure> {
      tool.headline->compute();
      return std::nullopt;
    });
    if (failure && silent.empty() && !IsTold(check, tool)) {
      silent = std::string(tool.key) + " fails without a word: " + failure->message;
    }
  });
  return silent;
}

/// What is wrong with the lines of the problems, of a file that has `lines` of them.
std::string ProblemOfLines(const JobCheck& check, std::ptrdiff_t lines) {
  int before = 0;
  for (const JobProblem& problem : check.problems) {
    if (problem.line < 1 || problem.line > lines) {
      return "line " + std::to_string(problem.line) + " of " + std::to_string(lines);
    }
    if (problem.isWarning && problem.line < before) return "warnings out of order";
    if (problem.isWarning) before = problem.line;
    if (problem.message.empty()) return "a problem without a message";
  }
  return {};
}

std::string ProblemOfVerdict(const JobCheck& check, bool isOpened) {
  if (check.failure) return "no verdict: " + check.failure->message;
  if ((check.verdict == JobVerdict::Good) != isOpened) return "the verdict is not that of opening";
  const auto stops = std::ranges::count(check.problems, false, &JobProblem::isWarning);
  if (stops != (isOpened ? 0 : 1)) return std::to_string(stops) + " problems stop the reading";
  return {};
}

std::string ProblemOfOutput(const JobCheck& check) {
  constexpr std::string_view kName = "a\"b\n\xFF.qjt";
  std::string json;
  AppendCheckJson(json, kName, check);
  std::string problem = JsonLinesProblem(json);
  if (!problem.empty()) return problem;
  std::string text;
  AppendCheckText(text, kName, check);
  problem = TerminalProblem(text);
  if (!problem.empty()) return problem;
  const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n'));
  return lines == check.problems.size() ? "" : "the text has not a line for each problem";
}

/// Lines of a text as its readers count them: CR LF, CR and LF end one.
std::ptrdiff_t LinesOf(std::string_view bytes) {
  std::ptrdiff_t lines = 1;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool endsAtNext = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
    if (!endsAtNext && (bytes[i] == '\r' || bytes[i] == '\n')) ++lines;
  }
  return lines;
}

}  // namespace

std::string ProblemOfCheck(std::string_view bytes) {
  const MemoryFile file(bytes);
  const bool isOpened = !OpenAfresh(file.path(), LengthUnit::Metric);
  Module1 = JobState{};
  const JobCheck check = CheckJobFile(file.path());
  std::string problem = ProblemOfVerdict(check, isOpened);
  if (problem.empty()) problem = ProblemOfLines(check, LinesOf(bytes));
  if (problem.empty()) problem = ProblemOfOutput(check);
  if (problem.empty() && isOpened) problem = SilentFailure(file.path(), check);
  return problem;
}

}  // namespace halvane
