#include "tools/ocra/ocra_score.h"

#include <array>
#include <optional>
#include <string_view>

#include "core/checked_array.h"
#include "core/checked_math.h"
#include "core/job_state.h"
#include "core/task_list.h"
#include "tools/ocra/ocra_controls.h"

namespace halvane {
namespace {

/// Stands for recommended actions of 0 or less, so that the index has a divisor.
constexpr double kLeastRecommended = 0.001;
/// Element of `OcraGripScores` that the wide grip and the finger ticks share.
constexpr int kWideGrip = 5;

struct ForceRow {
  double rating;
  double multiplier;
};
/// At or below this rating the force costs nothing.
constexpr double kFreeForce = 0.5;
// Exact ratings; one between two rows keeps the task's last multiplier.
constexpr std::array kForceRows{
    ForceRow{1.0, 0.85}, ForceRow{1.5, 0.75}, ForceRow{2.0, 0.65},
    ForceRow{2.5, 0.55}, ForceRow{3.0, 0.45}, ForceRow{3.5, 0.35},
    ForceRow{4.0, 0.2},  ForceRow{4.5, 0.1},  ForceRow{5.0, 0.01},
};

/// Closed below, open above: a value takes the last row that it reaches.
struct StepRow {
  double from;
  double multiplier;
};
constexpr std::array kRegionSteps{StepRow{4, 0.7}, StepRow{8, 0.6}, StepRow{12, 0.5},
                                  StepRow{16, 0.33}};
constexpr std::array kGripExtraSteps{StepRow{0, 1}, StepRow{4, 0.95}, StepRow{8, 0.9},
                                     StepRow{12, 0.8}};

// Hours 0 to 8; more match nothing.
constexpr std::array kRecoveryMultipliers{1.0, 0.9, 0.8, 0.7, 0.6, 0.45, 0.25, 0.1, 0.0};

template <std::size_t N>
std::optional<double> StepAt(const std::array<StepRow, N>& steps, double value) {
  std::optional<double> multiplier;
  for (const StepRow& step : steps) {
    if (value >= step.from) multiplier = step.multiplier;
  }
  return multiplier;
}

double Sum(double a, double b) { return Finite(a + b); }

void RateForce(int task) {
  if (const auto multiplier = OcraForceMultiplierOf(Module1.OcraForceRating.at(task))) {
    Module1.OcraForceMultiplier.at(task) = *multiplier;
  }
}

void SumObservedActions() {
  Module1.OcraActionsObserved = 0.0;
  for (const int task : ActiveTasks()) {
    const double actions =
        Product(Module1.OcraTaskDuration.at(task), Module1.OcraActionFrequency.at(task).AsDouble());
    Module1.OcraActionsObserved = Sum(Module1.OcraActionsObserved.AsDouble(), actions);
    RateForce(task);
  }
}

/// Slot 1 elbow, 2 wrist, 3 grip. The wide grip and the two finger ticks stay out of the grip.
void SumPostures() {
  Module1.OcraPostureSums.at(1) =
      ToInteger(Module1.OcraElbowRotation.AsDouble() + Module1.OcraElbowFlexion.AsDouble() +
                Module1.OcraElbowGesture);
  Module1.OcraPostureSums.at(2) =
      ToInteger(Module1.OcraWristDeviation.AsDouble() + Module1.OcraWristFlexion.AsDouble() +
                Module1.OcraWristActions.AsDouble() + Module1.OcraWristHold);
  double grip = 0;
  for (int list = 0; list < kWideGrip; ++list) grip += Module1.OcraGripScores.at(list).AsDouble();
  Module1.OcraPostureSums.at(3) = ToInteger(grip);
}

void FindWorstRegion() {
  Module1.OcraPostureMultiplier = 1.0;
  for (int region = 1; region <= 3; ++region) {
    const double multiplier = StepAt(kRegionSteps, Module1.OcraPostureSums.at(region)).value_or(1);
    Module1.OcraRegionMultiplier = multiplier;
    if (multiplier < Module1.OcraPostureMultiplier.AsDouble()) {
      Module1.OcraPostureMultiplier = multiplier;
    }
  }
}

void RateGripExtra() {
  TaggedField& score = Module1.OcraGripScores.at(kWideGrip);
  score = Sum(score.AsDouble(), Module1.OcraSameFingers.AsDouble() + Module1.OcraHoldObject);
  if (const auto multiplier = StepAt(kGripExtraSteps, score.AsDouble())) {
    Module1.OcraGripExtraMultiplier = *multiplier;
  }
}

void RateRecovery() {
  if (const auto multiplier = OcraRecoveryMultiplierOf(Module1.OcraRecoveryHours.AsText())) {
    Module1.OcraRecoveryMultiplier = *multiplier;
  }
}

void SumRecommendedActions() {
  double recommended = 0;
  for (const int task : ActiveTasks()) {
    double actions = kOcraReferenceActions;
    for (const double factor :
         {Module1.OcraForceMultiplier.at(task).AsDouble(), Module1.OcraPostureMultiplier.AsDouble(),
          Module1.OcraGripExtraMultiplier.AsDouble(), Module1.OcraTaskDuration.at(task),
          Module1.OcraRecoveryMultiplier}) {
      actions = Product(actions, factor);
    }
    recommended = Sum(recommended, actions);
  }
  Module1.OcraActionsRecommended = recommended <= 0 ? kLeastRecommended : recommended;
}

}  // namespace

std::optional<double> OcraForceMultiplierOf(double rating) {
  if (rating <= kFreeForce) return 1.0;
  for (const ForceRow& row : kForceRows) {
    if (rating == row.rating) return row.multiplier;
  }
  return std::nullopt;
}

std::optional<double> OcraRecoveryMultiplierOf(std::string_view hours) {
  for (std::size_t row = 0; row < kRecoveryMultipliers.size(); ++row) {
    if (hours == PlainText(static_cast<int>(row))) return kRecoveryMultipliers[row];
  }
  return std::nullopt;
}

void OcraScoreLists() {
  Module1.OcraElbowRotation = Integer{0};
  Module1.OcraElbowFlexion = Integer{0};
  Module1.OcraWristDeviation = Integer{0};
  Module1.OcraWristFlexion = Integer{0};
  const auto addTo = [](TaggedField& field, Integer score) {
    field = ToInteger(field.AsDouble() + score);
  };
  for (int i = 0; i < kOcraListCount; ++i) {
    const OcraList& list = kOcraLists[static_cast<std::size_t>(i)];
    const Integer score =
        list.scores[CheckedSubscript(Module1.OcraComboChoice.at(i), list.scores.size())];
    if (list.field == nullptr) {
      Module1.OcraGripScores.at(i) = score;
    } else {
      addTo(Module1.*list.field, score);
    }
  }
}

void OcraCalculate() {
  SumObservedActions();
  SumPostures();
  FindWorstRegion();
  RateGripExtra();
  RateRecovery();
  SumRecommendedActions();
  Module1.OcraRiskIndex =
      Quotient(Module1.OcraActionsObserved.AsDouble(), Module1.OcraActionsRecommended.AsDouble());
}

void OcraScoreAndCalculate() {
  OcraScoreLists();
  OcraCalculate();
}

std::vector<WorkingValue> OcraWorkingValues() {
  return {
      {"OcraGripScores", Elements(Module1.OcraGripScores), "points",
       "scores of exposure lists 0 to 5; the last one, the wide grip, with the points of the two "
       "finger boxes"},
      {"OcraElbowRotation", Module1.OcraElbowRotation, "points",
       "scores of supination and pronation"},
      {"OcraElbowFlexion", Module1.OcraElbowFlexion, "points",
       "scores of elbow flexion and extension"},
      {"OcraWristDeviation", Module1.OcraWristDeviation, "points",
       "scores of ulnar and radial deviation"},
      {"OcraWristFlexion", Module1.OcraWristFlexion, "points",
       "scores of wrist flexion and extension"},
      {"OcraPostureSums", Elements(Module1.OcraPostureSums), "points",
       "sums of the regions: 1 elbow, 2 wrist, 3 grip; element 0 stays 0"},
      {"OcraRegionMultiplier", Module1.OcraRegionMultiplier, "",
       "posture multiplier of the region that was looked at last"},
      {"OcraPostureMultiplier", Module1.OcraPostureMultiplier, "",
       "smallest posture multiplier of the three regions"},
      {"OcraGripExtraMultiplier", Module1.OcraGripExtraMultiplier, "",
       "multiplier of the wide grip and the finger boxes"},
      {"OcraRecoveryMultiplier", Module1.OcraRecoveryMultiplier, "",
       "multiplier of the hours without adequate recovery"},
      {"OcraForceMultiplier", Elements(Module1.OcraForceMultiplier), "",
       "multiplier of the force rating, by task; null for a task that does not exist"},
      {"OcraActionsObserved", Module1.OcraActionsObserved, "actions a shift",
       "technical actions observed"},
      {"OcraActionsRecommended", Module1.OcraActionsRecommended, "actions a shift",
       "technical actions recommended; 0.001 for none"},
      {"OcraRiskIndex", Module1.OcraRiskIndex, "", "actions observed over actions recommended"},
  };
}

}  // namespace halvane
