#include "tools/report_parts.h"

#include "core/job_state.h"
#include "core/number_text.h"

namespace halvane {

void SetStops(RichText& RichTextBox1, std::span<const int> stops) {
  RichTextBox1.SetTabCount(static_cast<int>(stops.size()));
  int stop = 0;
  for (const int twips : stops) RichTextBox1.SetTab(stop++, twips);
}

std::string Whole(Integer score) { return Format(score, Pattern::Whole); }

std::string_view HandLine() { return Module1.Hand == 0 ? "Hand: Right Side" : "Hand: Left Side"; }

void AppendNames(RichText& RichTextBox1) {
  RichTextBox1.Append(kNewLine, "Analyst: ", Module1.JobAnalyst.AsText());
  RichTextBox1.Append(kNewLine, "Job Name: ", Module1.JobName.AsText());
  RichTextBox1.Append(kNewLine, "Workstation ID: ", Module1.JobWorkstationId);
}

void AppendIdentification(RichText& RichTextBox1) {
  AppendNames(RichTextBox1);
  RichTextBox1.Append(kNewLine);
  RichTextBox1.Append(kNewLine, HandLine());
  RichTextBox1.Append(kNewLine);
}

}  // namespace halvane
