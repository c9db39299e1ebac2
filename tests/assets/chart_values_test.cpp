// The charts that end reports carry a second copy of numbers and words of the program; here the
// words that a reader sees on them are compared with what the program computes and reports.
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>
#include <array>
#include <cmath>
#include <limits>
#include <set>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "core/number_text.h"
#include "core/task_list.h"
#include "tests/assets/picture_files.h"
#include "tools/ctd/ctd_score.h"
#include "tools/ocra/ocra_report.h"
#include "tools/ocra/ocra_score.h"
#include "tools/report_charts.h"

namespace halvane {
namespace {

/// What stands on a chart, in the order of the file.
struct Chart {
  QStringList words;
  std::vector<double> boxHeights;  // logical pixels, without the ground
};

Chart ChartOf(const QString& asset) {
  Chart chart;
  QXmlStreamReader reader(ContentOf(SourceFile("assets/" + asset + ".svg")));
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == u"rect") {
      chart.boxHeights.push_back(reader.attributes().value("height").toDouble());
    }
    if (reader.name() == u"text") chart.words << reader.readElementText();
  }
  EXPECT_FALSE(reader.hasError()) << asset.toStdString();
  EXPECT_FALSE(chart.boxHeights.empty()) << asset.toStdString();
  if (!chart.boxHeights.empty()) chart.boxHeights.erase(chart.boxHeights.begin());
  return chart;
}

void StartJobWithOneTask() {
  Module1 = JobState{};
  AddTaskRecord();
}

double ForceMultiplierOf(double rating) {
  StartJobWithOneTask();
  Module1.OcraForceRating.at(1) = rating;
  OcraScoreLists();
  OcraCalculate();
  return Module1.OcraForceMultiplier.at(1).AsDouble();
}

double RecoveryMultiplierOf(int hours) {
  Module1 = JobState{};
  Module1.OcraRecoveryMultiplier = -1;
  Module1.OcraRecoveryHours = static_cast<Integer>(hours);
  OcraScoreLists();
  OcraCalculate();
  return Module1.OcraRecoveryMultiplier;
}

TEST(OcraMultiplierChart, HasEveryMultiplierThatTheProgramComputes) {
  QStringList words{"Force and recovery multipliers", "Force multiplier"};
  std::vector<double> multipliers;
  const auto addBar = [&](double multiplier, const QString& label) {
    multipliers.push_back(multiplier);
    words << QString::fromStdString(PlainText(multiplier)) << label;
  };
  for (int halves = 1; halves <= 10; ++halves) {
    const double rating = halves / 2.0;
    const QString label = QString::fromStdString(Format(rating, Pattern::OneDecimal));
    addBar(ForceMultiplierOf(rating), halves == 1 ? "≤" + label : label);
  }
  words << "force rating"
        << "Recovery multiplier";
  for (int hours = 0; hours <= 8; ++hours) {
    addBar(RecoveryMultiplierOf(hours), QString::number(hours));
  }
  words << "hours without adequate recovery"
        << "Recommended actions = " + QString::fromStdString(PlainText(kOcraReferenceActions)) +
               " × task minutes × force × posture × recovery multiplier";

  const Chart chart = ChartOf("ocra/multipliers");
  EXPECT_EQ(chart.words.join('\n').toStdString(), words.join('\n').toStdString());
  ASSERT_EQ(chart.boxHeights.size(), multipliers.size());
  for (std::size_t bar = 0; bar < multipliers.size(); ++bar) {
    EXPECT_NEAR(chart.boxHeights[bar] / chart.boxHeights[0], multipliers[bar], 0.001) << bar;
  }
}

TEST(OcraMultiplierChart, FirstBarHoldsForAllLowerRatingsAndTheLastHourIsTheLastRow) {
  EXPECT_EQ(ForceMultiplierOf(0), ForceMultiplierOf(0.5));
  EXPECT_EQ(ForceMultiplierOf(0.3), ForceMultiplierOf(0.5));
  EXPECT_EQ(RecoveryMultiplierOf(9), -1);
}

/// What follows `label` in a line of the zone at `index`; empty where there is no zone.
QString ZoneTextAt(double index, std::size_t line, const QString& label) {
  const OcraZone zone = OcraZoneOf(index);
  if (zone.lines.empty()) return {};
  return QString::fromStdString(std::string(zone.lines[line])).section(label, 1);
}

QString ZoneNameAt(double index) { return ZoneTextAt(index, 0, "Zone: "); }

/// The report's line on the risk, in the shorter words of the chart.
QString RiskAt(double index) {
  return ZoneTextAt(index, 1, "Risk Level: ")
      .replace("Work-related Musculoskeletal Disorders", "disorders")
      .replace("upto", "up to");
}

TEST(OcraZoneChart, BoundsNamesAndRisksAreThoseOfTheReport) {
  const QStringList words = ChartOf("ocra/zones").words;
  const qsizetype table = words.indexOf("Index");
  ASSERT_GT(table, 0) << words.join('\n').toStdString();
  const double up = std::numeric_limits<double>::infinity();
  struct Row {
    const char* index;
    double first, last;   // inside the zone
    double below, above;  // just outside
  };
  const std::array rows{
      Row{"up to 1.0", 0, 1.0, -1, std::nextafter(1.0, up)},
      Row{"over 1.0, up to 2.0", std::nextafter(1.0, up), 2.0, 1.0, std::nextafter(2.0, up)},
      Row{"over 2.0, up to 3.9", std::nextafter(2.0, up), 3.9, 2.0, std::nextafter(3.9, up)},
      Row{"4.0 and over", 4.0, 1e9, std::nextafter(4.0, 0.0), -1},
  };
  EXPECT_EQ(words.mid(table, 3), (QStringList{"Index", "Zone", "Risk level"}));
  qsizetype at = table + 3;
  for (const Row& row : rows) {
    ASSERT_LT(at + 2, words.size());
    EXPECT_EQ(words[at], row.index);
    const QString zone = words[at + 1];
    QString risk = words[at + 2];
    at += 3;
    if (risk != "ABSENT") risk += ", " + words.value(at++) + ".";
    EXPECT_EQ(ZoneNameAt(row.first), zone) << row.index;
    EXPECT_EQ(ZoneNameAt(row.last), zone) << row.index;
    if (row.below >= 0) {
      EXPECT_NE(ZoneNameAt(row.below), zone) << row.index;
    }
    if (row.above >= 0) {
      EXPECT_NE(ZoneNameAt(row.above), zone) << row.index;
    }
    EXPECT_EQ(RiskAt(row.first).toStdString(), risk.toStdString()) << row.index;
    EXPECT_TRUE(words.first(table).contains(zone)) << "on the scale";
  }
  EXPECT_EQ(words.mid(at), QStringList{"Disorders: Work-related Musculoskeletal Disorders. "
                                       "Between 3.9 and 4.0 lies no zone."});
  EXPECT_EQ(ZoneNameAt(std::nextafter(3.9, up)), "");
  EXPECT_EQ(ZoneNameAt(std::nextafter(4.0, 0.0)), "");
}

/// A job of one task in the Force Frequency Factor's plain case: no force is needed, so that every
/// repetition counts once.
void ComputeJob(double repetitions) {
  StartJobWithOneTask();
  Module1.JobDurationPerDay = 8.0;
  Module1.JobCycleTime = 1.0;
  Module1.CtdWorkTime.at(1) = 0.05;
  Module1.CtdRepetitions.at(1) = repetitions;
  Module1.CtdForceMvc.at(1) = 0.0;
  Module1.CtdBackFlexion.at(1) = Integer{2};
  CTDcalculate();
}

TEST(CtdReportChart, WeightsAndDivisorAreThoseOfTheComputation) {
  const QString words = ChartOf("ctd/report").words.join('\n');
  const auto formula = QRegularExpression(
                           "Grand Score = ([0-9.]+) × Force Frequency Factor "
                           "\\+ ([0-9.]+) × Posture Factor$")
                           .match(words);
  ASSERT_TRUE(formula.hasMatch()) << words.toStdString();
  const double forceWeight = formula.captured(1).toDouble();
  const double postureWeight = formula.captured(2).toDouble();
  EXPECT_TRUE(words.contains("× " + formula.captured(1) + "\nPosture Factor\n"));
  EXPECT_TRUE(words.contains("× " + formula.captured(2) + "\nGrand Score\n"));
  const auto divisor = QRegularExpression("repetitions a shift ÷ ([0-9,]+),\n").match(words);
  ASSERT_TRUE(divisor.hasMatch()) << words.toStdString();

  ComputeJob(0);
  EXPECT_EQ(Module1.CtdForceFrequencyFactor, 0);
  EXPECT_GT(Module1.CtdPostureFactor, 0);
  EXPECT_DOUBLE_EQ(Module1.CtdGrandScore.AsDouble(), postureWeight * Module1.CtdPostureFactor);
  ComputeJob(10);
  EXPECT_GT(Module1.CtdForceFrequencyFactor, 0);
  EXPECT_DOUBLE_EQ(
      Module1.CtdGrandScore.AsDouble(),
      postureWeight * Module1.CtdPostureFactor + forceWeight * Module1.CtdForceFrequencyFactor);
  EXPECT_DOUBLE_EQ(Module1.CtdForceFrequencyFactor,
                   10 * 480 / divisor.captured(1).remove(',').toDouble());
}

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::set<QString> NumbersIn(const QString& text) {
  static const QRegularExpression kNumber(R"(\d+([.,]\d+)*)");
  std::set<QString> numbers;
  for (auto found = kNumber.globalMatch(text); found.hasNext();) {
    numbers.insert(found.next().captured());
  }
  return numbers;
}

/// What is spoken of a chart in place of it.
TEST(ReportCharts, AreToldByTheirTitlesAndNumbers) {
  for (const ReportChart& row : kReportCharts) {
    const QString asset = Text(row.assetName);
    const QString sense = Text(row.sense);
    SCOPED_TRACE(asset.toStdString());
    const Chart chart = ChartOf(asset);
    EXPECT_TRUE(sense.startsWith(chart.words.first() + ": "));
    std::set<QString> shown = NumbersIn(chart.words.join(' '));
    // Where an axis begins.
    if (asset == "ocra/zones") shown.erase("0.0");
    if (asset == "strain_index/risk_chart") shown.erase("0");
    EXPECT_GE(shown.size(), 3U);
    EXPECT_EQ(NumbersIn(sense), shown);
  }
}

/// The sense of the multipliers says them in the order of the bars.
TEST(ReportCharts, TheMultipliersAreToldBarByBar) {
  const QString sense = Text(kReportCharts[1].sense);
  for (int halves = 1; halves <= 10; ++halves) {
    const double rating = halves / 2.0;
    const std::string said = PlainText(ForceMultiplierOf(rating)) +
                             (halves == 1 ? " up to " : " at ") +
                             Format(rating, Pattern::OneDecimal);
    EXPECT_TRUE(sense.contains(QString::fromStdString(said))) << said;
  }
  for (int hours = 0; hours <= 8; ++hours) {
    const std::string said =
        PlainText(RecoveryMultiplierOf(hours)) + " at " + std::to_string(hours);
    EXPECT_TRUE(sense.contains(QString::fromStdString(said))) << said;
  }
}

}  // namespace
}  // namespace halvane
