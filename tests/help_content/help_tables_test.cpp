// The numbers and captions in the help pages are the program's own.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "core/job_state.h"
#include "core/number_text.h"
#include "core/task_list.h"
#include "expected_tables.h"
#include "tools/ctd/ctd_controls.h"
#include "tools/ctd/ctd_score.h"

namespace halvane {

void PrintTo(const HelpPage& page, std::ostream* out) { *out << page.file; }

namespace {

constexpr auto kCtdPage = "CTD2.htm";
// Constants of formulas, which the program does not give away one by one: they are put into the
// formulas of the page, and the results are compared.
const std::set<std::string> kFormulas{"ctd-curve", "ctd-allowable", "ctd-strain", "ctd-grand"};
/// One of them that stands in a sentence.
const std::string kDivisor = "ctd-divisor";

const ExpectedTables& AllExpectedTables() {
  static const ExpectedTables tables = [] {
    ExpectedTables all;
    for (const ExpectedTables& some :
         {OcraTables(), CtdTables(), StrainIndexTables(), RulaPageTables(), RebaPageTables(),
          HalTables(), OtherTables()}) {
      all.insert(some.begin(), some.end());
    }
    return all;
  }();
  return tables;
}

std::string Line(const std::vector<std::string>& cells) {
  std::string line;
  for (const std::string& cell : cells) line += "| " + cell + " ";
  return line;
}

class HelpPageTables : public testing::TestWithParam<HelpPage> {};

TEST_P(HelpPageTables, SayWhatTheProgramSays) {
  for (const auto& [id, rows] : GetParam().tables) {
    if (kFormulas.contains(id)) continue;
    const auto expected = AllExpectedTables().find(id);
    if (expected == AllExpectedTables().end()) {
      ADD_FAILURE() << "nothing checks the table " << id;
      continue;
    }
    const TableRows& program = expected->second;
    EXPECT_EQ(rows.size(), program.size()) << id;
    for (std::size_t row = 0; row < std::min(rows.size(), program.size()); ++row) {
      EXPECT_EQ(Line(rows[row]), Line(program[row])) << id << ", row " << row;
    }
  }
}

TEST_P(HelpPageTables, NumbersInSentencesAreTheProgramsOwn) {
  const auto expected = ExpectedMarks();
  for (const auto& [id, text] : GetParam().marked) {
    if (id == kDivisor) continue;
    ASSERT_TRUE(expected.contains(id)) << "nothing checks " << id;
    EXPECT_EQ(text, expected.at(id)) << id;
  }
}

std::string NameOfCase(const testing::TestParamInfo<HelpPage>& info) {
  std::string name = info.param.file;
  std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
  return name;
}
INSTANTIATE_TEST_SUITE_P(Pages, HelpPageTables, testing::ValuesIn(HelpPages()), NameOfCase);

TEST(HelpTables, EveryExpectedTableAndNumberStandsOnAPage) {
  std::set<std::string> tables;
  std::set<std::string> marks;
  for (const HelpPage& page : HelpPages()) {
    for (const auto& [id, rows] : page.tables) EXPECT_TRUE(tables.insert(id).second) << id;
    for (const auto& [id, text] : page.marked) EXPECT_TRUE(marks.insert(id).second) << id;
  }
  for (const auto& [id, rows] : AllExpectedTables()) EXPECT_TRUE(tables.contains(id)) << id;
  for (const std::string& id : kFormulas) EXPECT_TRUE(tables.contains(id)) << id;
  for (const auto& [id, text] : ExpectedMarks()) EXPECT_TRUE(marks.contains(id)) << id;
}

/// The numbers of a table of terms. The names are compared; a number that is none fails.
std::vector<double> Terms(const std::string& id, const std::vector<std::string>& names) {
  const TableRows& rows = HelpTable(kCtdPage, id);
  std::vector<double> numbers;
  EXPECT_EQ(rows.size(), names.size() + 1) << id;
  for (std::size_t row = 1; row < rows.size() && row <= names.size(); ++row) {
    EXPECT_EQ(rows[row].at(0), names[row - 1]) << id;
    numbers.push_back(ReadsAs(rows[row].at(1)));
    EXPECT_EQ(PlainText(numbers.back()), rows[row].at(1)) << id;
  }
  numbers.resize(names.size());
  return numbers;
}

/// One task of a job of 8 hours and a cycle of one minute, its hand spans in inches.
int MakeTask() {
  Module1 = JobState{};
  JobReset();
  Module1.Units = 1;
  Module1.JobCycleTime = 1;
  return AddTaskRecord();
}

constexpr double kShift = 480;
constexpr double kNear = 1e-9;

TEST(HelpOfCtd, SpanCurvesOfThePageGiveTheProgramsStrength) {
  const TableRows& rows = HelpTable(kCtdPage, "ctd-curve");
  const auto grips = kCtdGroups[static_cast<std::size_t>(CtdGroup::Grip)].ribbons;
  ASSERT_EQ(rows.size(), grips.size() + 1);
  for (std::size_t row = 1; row < rows.size(); ++row) {
    const CtdRibbon& grip = grips[row - 1];
    EXPECT_EQ(rows[row].at(0), grip.caption);
    for (const double x : {0.0, 1.0, 2.5, 6.0, 11.0}) {
      double strength = 0;
      for (std::size_t power = 0; power < 4; ++power) {
        strength += ReadsAs(rows[row].at(power + 1)) * std::pow(x, power);
      }
      EXPECT_NEAR(strength, CtdSpanStrength(grip.index, x), kNear) << grip.caption << " at " << x;
    }
  }
}

TEST(HelpOfCtd, AllowableForceAndWeightsOfThePageGiveTheProgramsScore) {
  const auto allowable =
      Terms("ctd-allowable",
            {"constant", "power of the work time, minutes", "power of the rest time, minutes",
             "factor", "factor for per cent", "power of the shift, minutes"});
  const auto weights =
      Terms("ctd-grand", {"weight of the Posture Factor", "weight of the Force Frequency Factor"});
  const double divisor = ReadsAs(HelpPageOf(kCtdPage).marked.at(kDivisor));
  for (const double workTime : {0.02, 0.05, 0.09}) {
    const int task = MakeTask();
    Module1.CtdWorkTime.at(task) = workTime;
    Module1.CtdRepetitions.at(task) = 10;
    Module1.CtdForceMvc.at(task) = 60;
    Module1.CtdHandSpan.at(task) = 2.5;
    CTDcalculate();

    const double force = allowable[0] * std::pow(workTime, allowable[1]) *
                         std::pow(1 - 10 * workTime, allowable[2]) * allowable[3] * allowable[4] *
                         std::pow(kShift, allowable[5]);
    const double strength = CtdRelativeStrength(0, 0, 0, 0) * CtdSpanStrength(0, 2.5 * 2.54) / 100;
    const double required = 60 * 100 / strength;
    ASSERT_GT(required, force) << "the repetitions have to be weighted for this test";
    const double factor = required / force * 10 * kShift / divisor;
    EXPECT_NEAR(Module1.CtdForceFrequencyFactor, factor, kNear) << workTime;
    // Every posture is neutral, so the Posture Factor is 0.5.
    EXPECT_NEAR(Module1.CtdGrandScore.AsDouble(), 0.5 * weights[0] + factor * weights[1], kNear);
  }
}

TEST(HelpOfCtd, StrainOfThePageGivesTheProgramsCapacity) {
  const auto strain = Terms(
      "ctd-strain", {"constant", "power of the load base", "power of the duration held, minutes",
                     "power of the remaining time, minutes", "power of the shift, minutes"});
  for (const double held : {0.1, 0.4, 0.7}) {
    for (const double load : {0.0, 1.0, 1.5}) {
      const int task = MakeTask();
      StoreCtdCategory(0, task, 1);
      Module1.CtdLoadHeld.at(task, 0) = load;
      Module1.CtdPostureDuration.at(task, 0) = held;
      CTDcalculate();
      const double base = (load * 2.2 + 5) / 50;
      const double share = strain[0] * std::pow(base, strain[1]) * std::pow(held, strain[2]) *
                           std::pow(1 - held, strain[3]) * std::pow(kShift, strain[4]);
      ASSERT_LT(share, 1) << "something has to be left for this test";
      EXPECT_NEAR(Module1.CtdPostureCapacity.at(0).AsDouble(), (1 - share) * 100, kNear);
      EXPECT_NEAR(Module1.CtdPostureScore.at(0).AsDouble(), 50 / ((1 - share) * 100), kNear);
    }
  }
}

}  // namespace
}  // namespace halvane
