#include "tests/reporter/sample_report.h"

#include "core/job_state.h"

namespace halvane {
namespace {

/// Writes the job's name and changes the job, as tools do.
bool WriteGoodReport(RichText& RichTextBox1) {
  RichTextBox1.Append("Job: ", Module1.JobName.AsText());
  Module1.JobName = "changed by the tool";
  Module1.SiDutyRating = static_cast<Integer>(Module1.SiDutyRating + 1);
  return true;
}

std::vector<WorkingValue> GoodValues() { return {{"SiDutyRating", Module1.SiDutyRating}}; }

bool Fail(RichText& RichTextBox1) {
  RichTextBox1.Append("half of a report");
  throw RuntimeFailure(FailureKind::DivisionByZero);
}

bool WriteUnits(RichText& RichTextBox1) {
  RichTextBox1.Append(PlainText(Module1.Units));
  return true;
}

std::vector<WorkingValue> NoValues() { return {}; }

bool WriteNothing(RichText& /*RichTextBox1*/) { return false; }

}  // namespace

const std::array<ToolRow, 2> kTestTools{
    ToolRow{Tool::StrainIndex, "good", "", "", "Good <Tool>", "", WriteGoodReport, GoodValues,
            nullptr},
    ToolRow{Tool::Ocra, "failing", "", "", "Failing Tool", "", Fail, GoodValues, nullptr},
};

const ToolRow kSilentTool{Tool::Ctd, "silent",     "",       "",     "Silent Tool",
                          "",        WriteNothing, NoValues, nullptr};
const ToolRow kUnitsTool{Tool::Ctd, "units",    "",       "",     "Units Tool",
                         "",        WriteUnits, NoValues, nullptr};

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
