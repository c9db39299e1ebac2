#include "tools/report_charts.h"

#include "core/runtime_failure.h"

namespace halvane {

// As one would tell the picture to somebody who does not see it: its title, then each value with
// what it belongs to.
constexpr std::array<ReportChart, 4> kReportCharts{{
    {"ocra/zones",
     "Zones of the OCRA index: Green, up to 1.0, risk ABSENT. Yellow/Green, over 1.0, up to 2.0, "
     "risk NEGLIGIBLE, predicted disorders similar to reference groups. Yellow, over 2.0, up to "
     "3.9, risk SLIGHT, slight excess of disorders predicted (up to 3 times). Red, 4.0 and over, "
     "risk PRESENT, significant excess of disorders predicted. Disorders: Work-related "
     "Musculoskeletal Disorders. Between 3.9 and 4.0 lies no zone."},
    {"ocra/multipliers",
     "Force and recovery multipliers: Force multiplier by force rating, 1 up to 0.5, 0.85 at 1.0, "
     "0.75 at 1.5, 0.65 at 2.0, 0.55 at 2.5, 0.45 at 3.0, 0.35 at 3.5, 0.2 at 4.0, 0.1 at 4.5, "
     "0.01 at 5.0. Recovery multiplier by hours without adequate recovery, 1 at 0, 0.9 at 1, 0.8 "
     "at 2, 0.7 at 3, 0.6 at 4, 0.45 at 5, 0.25 at 6, 0.1 at 7, 0 at 8. Recommended actions = 30 "
     "× task minutes × force × posture × recovery multiplier."},
    {"ctd/report",
     "From two factors to the Grand Score: Force Frequency Factor, all tasks: repetitions a shift "
     "÷ 10,000, raised where the force needed is above the allowable force. Posture Factor, worst "
     "task: mean of the eight scores of shoulders, elbows, back and neck (posture, load held, "
     "duration). Grand Score = 2.004 × Force Frequency Factor + 3.18 × Posture Factor, the "
     "predicted incidence rate per 200,000 worked hours (100 people, 2,000 hours each)."},
    {"strain_index/risk_chart",
     "Strain Index score and risk: up to 3, Low risk, probably safe. Above 3, below 5, Low risk. 5 "
     "to below 7, Moderate risk. 7 and above, High risk, probably hazardous."},
}};

void AppendChart(RichText& RichTextBox1, std::string_view assetName) {
  for (const ReportChart& chart : kReportCharts) {
    if (chart.assetName != assetName) continue;
    RichTextBox1.AppendPicture(chart.assetName, chart.sense);
    return;
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

}  // namespace halvane
