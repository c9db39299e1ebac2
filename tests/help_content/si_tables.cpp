#include <string>

#include "core/job_state.h"
#include "core/runtime_failure.h"
#include "expected_tables.h"
#include "tools/strain_index/si_controls.h"
#include "tools/strain_index/si_headline.h"
#include "tools/strain_index/si_score.h"

namespace halvane {
namespace {

constexpr auto kUnchanged = "as before";
constexpr Integer kNeverRated = 0;

void AddRatings(ExpectedTables& tables, const std::string& id, SiRibbonArray array,
                std::string_view SiLabelRow::*label, double SiMultiplierRow::*multiplier) {
  const SiFrame& frame = SiFrameOf(array);
  std::vector<std::string> headings{"Rating"};
  for (const SiColumn& column : frame.columns) headings.emplace_back(column.heading);
  headings.insert(headings.end(), {"In the report", "Multiplier"});
  TableRows& rows = AddTable(tables, id, headings);
  for (std::size_t row = 0; row < kSiRatings; ++row) {
    std::vector<std::string> cells{PlainText(static_cast<int>(row) + 1)};
    for (const SiColumn& column : frame.columns) cells.emplace_back(column.captions.at(row));
    cells.emplace_back(kSiLabels.at(row).*label);
    cells.push_back(PlainText(kSiMultipliers.at(row).*multiplier));
    rows.push_back(cells);
  }
}

/// The rating that a computation leaves in `rating`, which starts out never rated.
std::string RatingAfter(Integer& rating) {
  rating = kNeverRated;
  try {
    SiComputeScore();
  } catch (const RuntimeFailure&) {
    // A value in a gap, which leaves the rating without a row of its table.
  }
  return rating == kNeverRated ? kUnchanged : PlainText(int{rating});
}

void AddBands(ExpectedTables& tables, const std::string& id, const std::string& heading,
              const std::vector<Band>& bands, double SiMultiplierRow::*multiplier) {
  TableRows& rows = AddTable(tables, id, {heading, "Rating", "Multiplier"});
  for (const Band& band : bands) {
    const bool rated = band.result != kUnchanged;
    const std::string number =
        rated ? PlainText(SiMultipliersAt(std::stoi(band.result)).*multiplier) : kUnchanged;
    rows.push_back({band.range, band.result, number});
  }
}

void AddNumbers(ExpectedTables& tables) {
  Module1 = JobState{};
  JobReset();
  SiControls().Load();
  Module1.SiDutyRating = 1;
  Module1.SiEffortsRating = 1;
  AddBands(tables, "si-duration", "Hours a day",
           BandsOf(0, 24, 100,
                   [](double hours) {
                     Module1.JobDurationPerDay = hours;
                     return RatingAfter(Module1.SiDurationRating);
                   }),
           &SiMultiplierRow::SiDurationMultipliers);
  Module1.SiEffortObservationMinutes = 1;
  AddBands(tables, "si-efforts", "Efforts a minute",
           BandsOf(0, 60, 100,
                   [](double efforts) {
                     Module1.SiExertionCount = efforts;
                     Module1.SiDutyRating = 1;
                     return RatingAfter(Module1.SiEffortsRating);
                   }),
           &SiMultiplierRow::SiEffortsMultipliers);
  Module1.SiDutyObservationMinutes = 100.0;
  AddBands(tables, "si-duty", "Per cent of the time",
           BandsOf(0, 150, 100,
                   [](double minutes) {
                     Module1.SiExertionMinutes = minutes;
                     Module1.SiExertionCount = 1.0;
                     return RatingAfter(Module1.SiDutyRating);
                   }),
           &SiMultiplierRow::SiDutyMultipliers);
  TableRows& risk = AddTable(tables, "si-risk", {"Score", "What the report says"});
  for (const Band& band :
       BandsOf(0, 30, 100, [](double score) { return std::string(SiRiskOf(score).line); })) {
    risk.push_back({band.range, band.result});
  }
}

}  // namespace

TableRows SiResultRows() {
  const auto number = [](double value) { return Format(value, Pattern::OneDecimal); };
  const SiLabelRow& intensity = SiLabelsAt(Module1.SiIntensityRating);
  const SiLabelRow& posture = SiLabelsAt(Module1.SiPostureRating);
  const SiLabelRow& speed = SiLabelsAt(Module1.SiSpeedRating);
  return {
      {"Intensity of exertion", std::string(intensity.SiIntensityLabels),
       number(SiMultipliersAt(Module1.SiIntensityRating).SiIntensityMultipliers)},
      {"Duration of exertion (%)", number(Module1.SiDutyCyclePercent),
       number(SiMultipliersAt(Module1.SiDutyRating).SiDutyMultipliers)},
      {"Efforts/Minute", number(Module1.SiEffortsPerMinute),
       number(SiMultipliersAt(Module1.SiEffortsRating).SiEffortsMultipliers)},
      {"Hand/Wrist Posture", std::string(posture.SiPostureLabels),
       number(SiMultipliersAt(Module1.SiPostureRating).SiPostureMultipliers)},
      {"Speed of work", std::string(speed.SiSpeedLabels),
       number(SiMultipliersAt(Module1.SiSpeedRating).SiSpeedMultipliers)},
      {"Duration per Day (hr)", number(Module1.JobDurationPerDay.AsDouble()),
       number(SiMultipliersAt(Module1.SiDurationRating).SiDurationMultipliers)},
      {"Strain Index Score", "", number(Module1.SiStrainIndexScore)},
  };
}

ExpectedTables StrainIndexTables() {
  ExpectedTables tables;
  AddRatings(tables, "si-intensity", SiRibbonArray::SSRibbon1, &SiLabelRow::SiIntensityLabels,
             &SiMultiplierRow::SiIntensityMultipliers);
  AddRatings(tables, "si-posture", SiRibbonArray::SSRibbon2, &SiLabelRow::SiPostureLabels,
             &SiMultiplierRow::SiPostureMultipliers);
  AddRatings(tables, "si-speed", SiRibbonArray::SSRibbon3, &SiLabelRow::SiSpeedLabels,
             &SiMultiplierRow::SiSpeedMultipliers);
  AddNumbers(tables);
  OpenSample("packing-line.qjt");
  kSiHeadline.compute();
  TableRows& example = AddTable(tables, "si-example", {"Job factor", "Level", "Multiplier"});
  for (const auto& row : SiResultRows()) example.push_back(row);
  return tables;
}

}  // namespace halvane
