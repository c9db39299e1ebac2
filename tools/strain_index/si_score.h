#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "core/rich_text.h"
#include "core/tagged_field.h"
#include "tools/headline.h"
#include "tools/working_value.h"

namespace halvane {

/// What a rating from 1 to 5 stands for in the product; row 0 is rating 1.
///
/// Source: Harl & Venn (1995), the paper that the report names.
struct SiMultiplierRow {
  double SiIntensityMultipliers;
  double SiDutyMultipliers;
  double SiEffortsMultipliers;
  double SiPostureMultipliers;
  double SiSpeedMultipliers;
  double SiDurationMultipliers;
};

/// What the report calls a rating from 1 to 5; row 0 is rating 1.
struct SiLabelRow {
  std::string_view SiIntensityLabels;
  std::string_view SiPostureLabels;
  std::string_view SiSpeedLabels;
};

extern const std::array<SiMultiplierRow, 5> kSiMultipliers;
extern const std::array<SiLabelRow, 5> kSiLabels;

/// The row of a rating. Throws `SubscriptOutOfRange` for a rating that is none, 0 (never set)
/// included.
const SiMultiplierRow& SiMultipliersAt(int rating);
const SiLabelRow& SiLabelsAt(int rating);

/// Rates the job's fields and multiplies the six multipliers into `SiStrainIndexScore`. An
/// observation time of 0 or less is replaced by 0.001 minutes in the job itself.
///
/// Throws `SubscriptOutOfRange` while a rating has never been set: a first value in a gap between
/// two bands, or ribbons that no load has pressed. Throws `Overflow` for a ratio beyond a double.
void SiComputeScore();

/// A ratio that lies in the gap between two bands, so that a rating which was never set stays so.
struct SiGap {
  std::string_view name;  ///< of the working value
  double value;
  double end;    ///< of the band below
  double begin;  ///< of the band above
};
/// What stopped the last computation, where it was such a ratio.
std::optional<SiGap> SiGapMet();

/// Computes the score as above and writes the report into `RichTextBox1`.
void SI_Calculate(RichText& RichTextBox1);

/// What the report says of a score.
struct SiRisk {
  std::string_view line;
  ZoneColour colour;

  /// "Low", "Moderate" or "High".
  [[nodiscard]] std::string_view name() const;
};

/// "Risk Level = Low" below 5, "Risk Level = Moderate" from 5 to below 7, "Risk Level = High" from
/// 7 on.
SiRisk SiRiskOf(double strainIndexScore);

/// The working values of the last computation.
std::vector<WorkingValue> SiWorkingValues();

}  // namespace halvane
