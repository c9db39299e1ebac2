#include "tests/reporter/sample_summary.h"

#include <array>

#include "core/job_state.h"

namespace halvane {
namespace {

constexpr std::array kIndexColumns{HeadlineColumn{"index", "Index", Pattern::TwoDecimals},
                                   HeadlineColumn{"zone", "zone"}};
constexpr std::array kGradeColumns{HeadlineColumn{"score", "Grade"},
                                   HeadlineColumn{"level", "level"}};

/// The cycle time is the index; the tool leaves another one behind.
bool ComputeIndex() {
  Module1.OcraRiskIndex = Module1.JobCycleTime;
  Module1.JobCycleTime = 77;
  Module1.JobName = "changed by the tool";
  return true;
}
Headline ReadIndex() { return {{Module1.OcraRiskIndex, "Yellow"}, ZoneColour::Yellow}; }

/// Fails at a cycle time of 13 and has nothing to say of one of 0.
bool ComputeGrade() {
  if (Module1.JobCycleTime == 13) throw RuntimeFailure(FailureKind::DivisionByZero);
  Module1.RebaGrandScore = static_cast<Integer>(Module1.RebaGrandScore + Module1.JobCycleTime);
  return Module1.JobCycleTime != 0;
}
Headline ReadGrade() { return {{int{Module1.RebaGrandScore}, 3}, ZoneColour::Red}; }

const ToolHeadline kIndexHeadline{kIndexColumns, 8, ComputeIndex, ReadIndex};
const ToolHeadline kGradeHeadline{kGradeColumns, 10, ComputeGrade, ReadGrade};

bool Opens() { return true; }
void NoReport(RichText& /*RichTextBox1*/) {}
std::vector<WorkingValue> NoValues() { return {}; }

}  // namespace

const ToolRow kIndexTool{
    {Tool::Ocra, "index", "", "", "Index Tool", ""}, &kIndexHeadline, Opens, NoReport, NoValues};
const ToolRow kGradeTool{
    {Tool::Reba, "grade", "", "", "Grade Tool", ""}, &kGradeHeadline, Opens, NoReport, NoValues};

SummaryTools SampleTools() { return {&kIndexTool, &kGradeTool}; }

JobSummary SampleSummary() {
  JobSummary summary;
  summary.file = "a.qjt";
  summary.analyst = "Ann";
  summary.job = "Press line";
  summary.workstation = "W-17";
  summary.cells = {{{{1.5, "Yellow"}, ZoneColour::Yellow}, {}}, {{{9, 3}, ZoneColour::Red}, {}}};
  return summary;
}

JobSummary UnreadableSummary() {
  JobSummary summary;
  summary.file = "gone.qjt";
  summary.failure = ReportFailure{"FileError", "File error: gone.qjt: No such file"};
  return summary;
}

std::string Written(SummaryWriter& writer, const std::vector<JobSummary>& summaries) {
  std::string out;
  writer.Begin(out);
  if (writer.writesAsItGoes()) {
    for (const JobSummary& summary : summaries) writer.Row(out, summary);
  } else {
    std::vector<std::string> rows(summaries.size());
    for (std::size_t i = 0; i < rows.size(); ++i) writer.Row(rows[i], summaries[i]);
    for (const std::string& row : rows) writer.Keep(row);
    writer.BeginKept(out);
    for (const std::string& row : rows) writer.Kept(out, row);
  }
  writer.End(out);
  return out;
}

}  // namespace halvane
