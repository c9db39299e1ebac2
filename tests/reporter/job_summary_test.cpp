#include "reporter/job_summary.h"

#include <gtest/gtest.h>

#include "core/job_state.h"
#include "reporter/summary_command.h"
#include "tests/reporter/sample_summary.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

using Complaints = std::vector<std::string>;

class JobSummaryTest : public testing::Test {
 protected:
  /// A job file with this cycle time.
  std::string Write(const std::string& name, std::string_view cycleTime) {
    const std::string path = folder_.File(name);
    WriteBytes(path, EmptyJobWith(3, "8," + std::string(cycleTime) + ",0"));
    return path;
  }

  Complaints SummariseFile(const std::string& path) {
    return Summarise(summary_, path, LengthUnit::Metric, tools_);
  }

  static double IndexOf(const SummaryCell& cell) {
    return std::get<double>(cell.headline.values.front());
  }
  static int GradeOf(const SummaryCell& cell) {
    return std::get<int>(cell.headline.values.front());
  }

  TemporaryFolder folder_;
  SummaryTools tools_ = SampleTools();
  JobSummary summary_;
};

TEST_F(JobSummaryTest, HasTheTextsOfTheJobAndACellForEachTool) {
  const std::string path = folder_.File("a.qjt");
  WriteBytes(path, EmptyJobWith(4, "\"Ann\",7.5,\"W-17\",0,8"));
  EXPECT_EQ(SummariseFile(path), Complaints{});
  EXPECT_EQ(summary_.file, path);
  EXPECT_EQ(summary_.analyst, "Ann");
  EXPECT_EQ(summary_.job, "7.5");
  EXPECT_EQ(summary_.workstation, "W-17");
  EXPECT_EQ(summary_.cells.size(), 2U);
  EXPECT_FALSE(summary_.failure);
}

TEST_F(JobSummaryTest, NothingOfAnotherFileOrToolComesThrough) {
  const std::string first = Write("a.qjt", "4");
  const std::string second = Write("b.qjt", "5");
  // The first tool changes the cycle time that the second one reads, and the second one adds to
  // what it finds.
  for (const SummaryTools& tools :
       {SummaryTools{&kIndexTool, &kGradeTool}, SummaryTools{&kGradeTool, &kIndexTool}}) {
    tools_ = tools;
    const std::size_t index = tools_.front() == &kIndexTool ? 0 : 1;
    Module1.RebaGrandScore = 100;
    SummariseFile(first);
    SummariseFile(second);
    EXPECT_EQ(IndexOf(summary_.cells.at(index)), 5);
    EXPECT_EQ(GradeOf(summary_.cells.at(1 - index)), 5);
    EXPECT_EQ(summary_.job, "");
  }
}

TEST_F(JobSummaryTest, FailedToolLeavesTheOthersStanding) {
  const std::string path = Write("a.qjt", "13");
  EXPECT_EQ(
      SummariseFile(path),
      Complaints{path + ": grade: Division by zero: line 3, field JobCycleTime: \"13\" leads to a "
                        "division by 0"});
  EXPECT_EQ(IndexOf(summary_.cells.at(0)), 13);
  EXPECT_FALSE(summary_.cells.at(0).reason);
  ASSERT_TRUE(summary_.cells.at(1).reason);
  EXPECT_EQ(summary_.cells.at(1).reason->kind, "DivisionByZero");
  EXPECT_EQ(SummariseFile(Write("b.qjt", "1")), Complaints{});
  EXPECT_FALSE(summary_.cells.at(1).reason);
}

TEST_F(JobSummaryTest, ToolWithNothingToSayIsNoFailure) {
  EXPECT_EQ(SummariseFile(Write("a.qjt", "0")), Complaints{});
  ASSERT_TRUE(summary_.cells.at(1).reason);
  EXPECT_EQ(summary_.cells.at(1).reason->kind, "NoReport");
}

TEST_F(JobSummaryTest, FileThatCannotBeReadHasNothingOfTheOneBefore) {
  SummariseFile(Write("a.qjt", "1"));
  const std::string path = folder_.File("bad.qjt");
  WriteBytes(path, EmptyJobWith(8, "x"));
  EXPECT_EQ(SummariseFile(path),
            Complaints{path + ": Type mismatch: line 8, field RulaControlState(2): \"x\""});
  EXPECT_EQ(summary_.file, path);
  EXPECT_EQ(summary_.analyst + summary_.job + summary_.workstation, "");
  EXPECT_TRUE(summary_.cells.empty());
  ASSERT_TRUE(summary_.failure);
  EXPECT_EQ(summary_.failure->kind, "TypeMismatch");
}

class SummaryOrder : public JobSummaryTest {
 protected:
  /// The names of the jobs in the order of a summary.
  std::string NamesBy(const ToolRow* sortBy) {
    SummaryCommand command(tools_, LengthUnit::Metric, ReportFormat::Csv, sortBy);
    std::string out;
    command.Begin(out);
    for (const std::string& file : files_) command.Do(out, file);
    command.End(out);
    std::string names;
    for (std::size_t start = out.find('\n') + 1; start < out.size();
         start = out.find('\n', start) + 1) {
      const std::string line = out.substr(start, out.find(',', start) - start);
      names += line.substr(line.rfind('/') + 1) + " ";
    }
    return names;
  }

  void Add(const std::string& name, std::string_view cycleTime) {
    files_.push_back(Write(name, cycleTime));
  }

  std::vector<std::string> files_;
};

TEST_F(SummaryOrder, WorstComesFirstAndEqualsStayInTheirOrder) {
  Add("two", "2");
  Add("ten", "10");
  Add("minus", "-1");
  Add("alsoTwo", "2");
  EXPECT_EQ(NamesBy(&kIndexTool), "ten two alsoTwo minus ");
  EXPECT_EQ(NamesBy(nullptr), "two ten minus alsoTwo ");
}

TEST_F(SummaryOrder, ManyEqualsStayInTheirOrder) {
  std::string expected;
  for (int i = 0; i < 100; ++i) {
    const std::string name = "job" + std::to_string(i);
    Add(name, "2");
    expected += name + " ";
  }
  EXPECT_EQ(NamesBy(&kIndexTool), expected);
}

TEST_F(SummaryOrder, JobsWithoutAHeadlineComeLast) {
  Add("fails", "13");
  files_.push_back(folder_.File("gone"));
  Add("nothing", "0");
  Add("minus", "-5");
  Add("one", "1");
  EXPECT_EQ(NamesBy(&kGradeTool), "one minus fails gone nothing ");
  EXPECT_EQ(NamesBy(&kIndexTool), "fails one nothing minus gone ");
}

TEST_F(SummaryOrder, SortedSummaryIsWrittenAtItsEnd) {
  Add("one", "1");
  SummaryCommand sorted(tools_, LengthUnit::Metric, ReportFormat::Csv, &kIndexTool);
  SummaryCommand inOrder(tools_, LengthUnit::Metric, ReportFormat::Csv, nullptr);
  SummaryCommand table(tools_, LengthUnit::Metric, ReportFormat::Text, nullptr);
  EXPECT_FALSE(sorted.writesAsItGoes());
  EXPECT_TRUE(inOrder.writesAsItGoes());
  EXPECT_FALSE(table.writesAsItGoes());
  std::string out;
  sorted.Do(out, files_.front());
  EXPECT_EQ(out, "");
  inOrder.Do(out, files_.front());
  EXPECT_NE(out, "");
}

TEST_F(SummaryOrder, FailureOfAJobIsTheCommandsToo) {
  SummaryCommand command(tools_, LengthUnit::Metric, ReportFormat::Csv, nullptr);
  std::string out;
  EXPECT_TRUE(command.Do(out, Write("a", "13")).failed);
  EXPECT_FALSE(command.Do(out, Write("b", "0")).failed);
  EXPECT_TRUE(command.Do(out, folder_.File("gone")).failed);
}

}  // namespace
}  // namespace halvane
