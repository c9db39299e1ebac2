#include "reporter/job_reports.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <vector>

#include "core/job_state.h"
#include "reporter/opened_job.h"
#include "tests/reporter/sample_report.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

/// A writer that shows which function was called with what.
class LogWriter : public ReportWriter {
 public:
  void Report(std::string& out, std::string_view file, const ToolRow& tool, const RichText& report,
              const std::vector<WorkingValue>& results) override {
    out += Name(file) + " " + std::string(tool.key) + ": " + report.text();
    for (const WorkingValue& result : results) {
      out += ", " + std::string(result.name) + " " + std::get<TaggedField>(result.value).AsText();
    }
    out += "\n";
  }
  void NoReport(std::string& out, std::string_view file, const ToolRow& tool,
                const ReportFailure& reason) override {
    out += Name(file) + " " + std::string(tool.key) + ": " + reason.kind + ", " + reason.message +
           "\n";
  }
  void ToolFailed(std::string& out, std::string_view file, const ToolRow& tool,
                  const ReportFailure& failure) override {
    out += Name(file) + " " + std::string(tool.key) + " failed: " + failure.kind + "\n";
  }
  void FileFailed(std::string& out, std::string_view file, std::span<const ToolRow* const> tools,
                  const ReportFailure& failure) override {
    out += Name(file) + " failed for " + std::to_string(tools.size()) + ": " + failure.kind + ", " +
           failure.message + "\n";
  }

 protected:
  static std::string Name(std::string_view file) {
    return std::string(file.substr(file.rfind('/') + 1));
  }
};

/// One that shows where a job begins and ends besides.
class BracketWriter : public LogWriter {
 public:
  void BeginJob(std::string& out, std::string_view file) override { out += Name(file) + " (\n"; }
  void EndJob(std::string& out) override { out += ")\n"; }
};

class JobReports : public testing::Test {
 protected:
  /// Appends the reports of the working tool, the failing one and the working one again to `log_`,
  /// and gives the complaints.
  std::vector<std::string> Append(const std::string& name) {
    const std::vector<const ToolRow*> tools{&kGoodTool, &kFailingTool, &kGoodTool};
    return AppendReports(log_, writer_, folder_.File(name), LengthUnit::Metric, tools);
  }

  std::string Write(const std::string& name, std::string_view bytes) {
    WriteBytes(folder_.File(name), bytes);
    return folder_.File(name);
  }

  TemporaryFolder folder_;
  LogWriter writer_;
  std::string log_;
};

TEST_F(JobReports, NothingOfAnotherFileOrToolComesThrough) {
  Write("a.qjt", EmptyJobWith(4, "\"\",\"first\",\"\",0,8"));
  Write("b.qjt", EmptyJobWith(4, "\"\",\"second\",\"\",0,8"));
  Module1.SiDutyRating = 4;
  Append("a.qjt");
  Append("b.qjt");
  EXPECT_EQ(log_,
            "a.qjt good: Job: first, SiDutyRating 1\n"
            "a.qjt failing failed: DivisionByZero\n"
            "a.qjt good: Job: first, SiDutyRating 1\n"
            "b.qjt good: Job: second, SiDutyRating 1\n"
            "b.qjt failing failed: DivisionByZero\n"
            "b.qjt good: Job: second, SiDutyRating 1\n");
}

TEST_F(JobReports, ReportsOnAJobThatWasReadAreBetweenItsBeginAndEnd) {
  const std::vector<const ToolRow*> tools{&kFailingTool, &kSilentTool};
  BracketWriter writer;
  for (const std::string& path :
       {Write("a.qjt", EmptyJobWith(4, "\"\",\"first\",\"\",0,8")), Write("b.qjt", "")}) {
    AppendReports(log_, writer, path, LengthUnit::Metric, tools);
  }
  EXPECT_TRUE(
      log_.starts_with("a.qjt (\n"
                       "a.qjt failing failed: DivisionByZero\n"
                       "a.qjt silent: "))
      << log_;
  EXPECT_NE(log_.find("\n)\nb.qjt failed for 2: "), std::string::npos) << log_;
  EXPECT_FALSE(log_.ends_with(")\n")) << log_;
}

TEST_F(JobReports, LongNameIsThereForEachTool) {
  const std::string name(100'000, 'x');
  const std::string path =
      Write("a.qjt", EmptyJobWith(4, "\"" + name + "\",\"short\",\"" + name + "y\",0,8"));
  const std::vector<const ToolRow*> tools{&kGoodTool, &kGoodTool, &kGoodTool};
  ASSERT_FALSE(OpenAfresh(path, LengthUnit::Metric));
  const JobState opened = Module1;
  std::size_t seen = 0;
  ForEachTool(tools, [&](const ToolRow& /*tool*/, std::size_t /*place*/) {
    EXPECT_EQ(Module1, opened);
    EXPECT_EQ(Module1.JobAnalyst, TaggedField(name));
    EXPECT_EQ(Module1.JobWorkstationId, name + "y");
    Module1.SiDutyRating = 5;
    Module1.JobName = "changed";
    ++seen;
  });
  EXPECT_EQ(seen, 3);
}

TEST_F(JobReports, ToolWithoutAReportOnTheJobIsNoFailure) {
  const std::string path = Write("a.qjt", EmptyJobText());
  const std::vector<const ToolRow*> tools{&kSilentTool, &kGoodTool};
  EXPECT_EQ(AppendReports(log_, writer_, path, LengthUnit::Metric, tools),
            std::vector<std::string>{});
  EXPECT_EQ(log_,
            "a.qjt silent: NoReport, The job has no task, so the tool has no report on it.\n"
            "a.qjt good: Job: , SiDutyRating 1\n");
}

TEST_F(JobReports, UnitsAreThoseAskedForInEveryReport) {
  const std::string path = Write("a.qjt", EmptyJobText());
  const std::vector<const ToolRow*> tools{&kUnitsTool, &kUnitsTool};
  Module1.Units = 1;
  AppendReports(log_, writer_, path, LengthUnit::Metric, tools);
  AppendReports(log_, writer_, path, LengthUnit::English, tools);
  EXPECT_EQ(log_,
            "a.qjt units: 0\n"
            "a.qjt units: 0\n"
            "a.qjt units: 1\n"
            "a.qjt units: 1\n");
}

TEST_F(JobReports, FailedComputationIsComplainedOfWithFileAndTool) {
  const std::string path = Write("a.qjt", EmptyJobText());
  EXPECT_EQ(Append("a.qjt"), std::vector<std::string>{path + ": failing: Division by zero"});
}

TEST_F(JobReports, FileThatCannotBeReadDoesNotKeepTheNextOneClosed) {
  Write("short.qjt", "\"qjt\",1,0,0,0\r\n0\r\n8,0\r\n");
  Write("good.qjt", EmptyJobText());
  Append("short.qjt");
  Append("good.qjt");
  EXPECT_EQ(log_,
            "short.qjt failed for 3: InputPastEnd, "
            "Input past end of file: line 4, field JobFileFlag\n"
            "good.qjt good: Job: , SiDutyRating 1\n"
            "good.qjt failing failed: DivisionByZero\n"
            "good.qjt good: Job: , SiDutyRating 1\n");
}

struct UnreadableRow {
  std::string label;
  std::string bytes;
  std::string complaint;
};

TEST_F(JobReports, ComplaintTellsFileLineAndField) {
  std::string task41 = EmptyJobText("41");
  for (int task = 1; task <= 41; ++task) task41 += UntouchedTaskText(task);
  const std::vector<UnreadableRow> rows = {
      {"empty", "", "Input past end of file: line 1, field marker"},
      {"other marker", "\"QJT\",1,0,0,0\r\n0\r\n",
       "Not a job file: its first field is not \"qjt\""},
      {"five foreign fields", "a,b,c,d,e", "Not a job file: its first field is not \"qjt\""},
      {"text in a number", EmptyJobWith(6, "left"),
       "Type mismatch: line 6, field RulaControlState(0): \"left\""},
      {"beyond 16 bits", EmptyJobWith(48, "32768"),
       "Overflow: line 48, field RebaControlState(22): \"32768\""},
      {"a task too few", EmptyJobText("1"), "Input past end of file: line 65, field TaskNames(1)"},
      {"negative count", EmptyJobText("-1"),
       "Subscript out of range: line 2, field TaskCount: \"-1\""},
      {"absurd count", EmptyJobText("1E9"), "Overflow: line 2, field TaskCount: \"1E9\""},
      {"count just beyond 16 bits", EmptyJobText("32768"),
       "Overflow: line 2, field TaskCount: \"32768\""},
      {"task 41", task41, "Subscript out of range: line 672, field CtdLoadHeld(41, 0): \"0\""},
  };
  for (const UnreadableRow& row : rows) {
    const std::string path = Write("job.qjt", row.bytes);
    EXPECT_EQ(Append("job.qjt"), std::vector<std::string>{path + ": " + row.complaint})
        << row.label;
  }
}

TEST_F(JobReports, ComplaintOfTheSystemNamesTheFileOnce) {
  EXPECT_EQ(Append("gone.qjt"), std::vector<std::string>{"File error: " + folder_.File("gone.qjt") +
                                                         ": No such file or directory"});
  EXPECT_EQ(Append(""),
            std::vector<std::string>{"File error: " + folder_.File("") + ": Is a directory"});
}

TEST_F(JobReports, FileThatMayNotBeReadIsComplainedOf) {
  Write("secret.qjt", EmptyJobText());
  // Root reads whatever it likes.
  const std::string path = folder_.File("secret.qjt");
  ASSERT_EQ(chmod(folder_.path().c_str(), 0755), 0);
  ASSERT_EQ(chmod(path.c_str(), 0), 0);
  const RightsOfNobody rights;
  EXPECT_EQ(Append("secret.qjt"),
            std::vector<std::string>{"File error: " + path + ": Permission denied"});
}

TEST_F(JobReports, FilesAreNotChanged) {
  const std::string bytes = EmptyJobText();
  const std::string path = Write("a.qjt", bytes);
  Append("a.qjt");
  EXPECT_EQ(BytesOf(path), bytes);
  EXPECT_EQ(folder_.Names(), "a.qjt");
}

}  // namespace
}  // namespace halvane
