#include "tests/reporter/sample_report.h"

#include "core/job_state.h"

namespace halvane {
namespace {

bool HasReport() { return true; }
bool HasNoReport() { return false; }

const ToolHeadline kPlain{{}, 1, HasReport, nullptr};
const ToolHeadline kWithoutReport{{}, 1, HasNoReport, nullptr};

/// Writes the job's name and changes the job, as tools do.
void WriteGoodReport(RichText& RichTextBox1) {
  RichTextBox1.Append("Job: ", Module1.JobName.AsText());
  Module1.JobName = "changed by the tool";
  Module1.SiDutyRating = static_cast<Integer>(Module1.SiDutyRating + 1);
}

std::vector<WorkingValue> GoodValues() { return {{"SiDutyRating", Module1.SiDutyRating}}; }

void Fail(RichText& RichTextBox1) {
  RichTextBox1.Append("half of a report");
  throw RuntimeFailure(FailureKind::DivisionByZero);
}

void WriteUnits(RichText& RichTextBox1) { RichTextBox1.Append(PlainText(Module1.Units)); }

std::vector<WorkingValue> NoValues() { return {}; }

void WriteNothing(RichText& /*RichTextBox1*/) {}

}  // namespace

const std::array<ToolRow, 2> kTestTools{
    ToolRow{{Tool::StrainIndex, "good", "", "", "Good <Tool>", ""},
            &kPlain,
            HasReport,
            WriteGoodReport,
            GoodValues},
    ToolRow{
        {Tool::Ocra, "failing", "", "", "Failing Tool", ""}, &kPlain, HasReport, Fail, GoodValues},
};

const ToolRow kSilentTool{{Tool::Ctd, "silent", "", "", "Silent Tool", ""},
                          &kWithoutReport,
                          HasNoReport,
                          WriteNothing,
                          NoValues};
const ToolRow kUnitsTool{
    {Tool::Ctd, "units", "", "", "Units Tool", ""}, &kPlain, HasReport, WriteUnits, NoValues};

RichText OneLine(std::string_view text, Alignment alignment, const std::vector<int>& tabStops) {
  RichText report;
  report.SetAlignment(alignment);
  report.SetTabCount(static_cast<int>(tabStops.size()));
  for (std::size_t i = 0; i < tabStops.size(); ++i) {
    report.SetTab(static_cast<int>(i), tabStops[i]);
  }
  report.Append(text);
  return report;
}

}  // namespace halvane
