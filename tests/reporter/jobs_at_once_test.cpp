#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <regex>

#include "tests/reporter/run_program.h"
#include "tests/reporter/running_program.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

using Arguments = std::vector<std::string>;

Arguments Joined(Arguments first, const Arguments& more) {
  first.insert(first.end(), more.begin(), more.end());
  return first;
}

/// A few hundred jobs in folders: good ones, some that tools fail on, and files that are none.
class JobsAtOnceTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = new TemporaryFolder;
    std::vector<std::string> files;
    for (const char* source : {"docs/samples", "tests/fuzz/report_corpus", "tests/fuzz/corpus"}) {
      for (const auto& entry : std::filesystem::directory_iterator(SourcePath(source))) {
        files.push_back(entry.path().string());
      }
    }
    for (int copy = 0; copy < 6; ++copy) {
      const std::string name = folder_->File("jobs" + std::to_string(copy));
      std::filesystem::create_directory(name);
      for (const std::string& file : files) {
        std::filesystem::copy_file(file, name + "/" + std::string(FileNameOf(file)));
      }
      std::filesystem::create_directory(name + "/empty");
      // A file of its name that cannot be read.
      std::filesystem::create_symlink("gone", name + "/link.qjt");
    }
  }
  static void TearDownTestSuite() {
    delete folder_;
    folder_ = nullptr;
  }

  static ProgramRun RunWith(const Arguments& arguments, int jobs) {
    const Arguments all =
        Joined(arguments, {"--jobs", std::to_string(jobs), "jobs0", "gone.qjt", "jobs0/empty",
                           "jobs1", "jobs2", "jobs0/link.qjt", "jobs3", "jobs4", "jobs5"});
    return RunProgram(HALVANE_REPORT, all, folder_->path());
  }

  static TemporaryFolder* folder_;
};

TemporaryFolder* JobsAtOnceTest::folder_ = nullptr;

TEST_F(JobsAtOnceTest, GiveTheSameBytesAsOneAfterTheOther) {
  const std::vector<Arguments> uses{
      {},
      {"--tool", "si", "--format", "text"},
      {"--format", "json"},
      {"--format", "html", "--tool", "rula", "--tool", "ocra"},
      {"--summary"},
      {"--summary", "--format", "json"},
      {"--summary", "--format", "csv", "--units", "english"},
      {"--summary", "--format", "html"},
      {"--summary", "--sort", "si"},
      {"--summary", "--sort", "ocra", "--format", "csv"},
      {"--check"},
      {"--check", "--format", "json"},
  };
  for (const Arguments& use : uses) {
    const ProgramRun alone = RunWith(use, 1);
    EXPECT_EQ(alone.status, 1);
    EXPECT_GT(alone.output.size(), 10000U);
    EXPECT_NE(alone.error.find("gone.qjt"), std::string::npos);
    EXPECT_NE(alone.error.find("there is no job file"), std::string::npos);
    for (const int jobs : {2, 3, 16}) {
      const ProgramRun run = RunWith(use, jobs);
      SCOPED_TRACE(jobs);
      SCOPED_TRACE(testing::PrintToString(use));
      EXPECT_EQ(run.status, alone.status);
      // Not printed, since it is megabytes.
      EXPECT_TRUE(run.output == alone.output);
      EXPECT_EQ(run.error, alone.error);
    }
  }
}

TEST_F(JobsAtOnceTest, FolderNamedAsAJobFileIsGoneThroughInItsPlace) {
  for (const char* name : {"named", "named.qjt"}) {
    std::filesystem::create_directory_symlink("jobs2", folder_->File(name));
  }
  for (const Arguments& use : {Arguments{"--summary", "--format", "csv"}, Arguments{"--check"},
                               Arguments{"--format", "json"}}) {
    for (const char* jobs : {"1", "3"}) {
      const auto run = [&](const std::string& name) {
        return RunProgram(HALVANE_REPORT,
                          Joined(use, {"--jobs", jobs, "jobs0", name, "gone.qjt", name, "jobs1"}),
                          folder_->path());
      };
      const auto withPlainName = [](const std::string& text) {
        return std::regex_replace(text, std::regex("named\\.qjt/"), "named/");
      };
      const ProgramRun plain = run("named");
      const ProgramRun asJobFile = run("named.qjt");
      SCOPED_TRACE(testing::PrintToString(use));
      EXPECT_NE(plain.output.find("named/"), std::string::npos);
      EXPECT_TRUE(withPlainName(asJobFile.output) == plain.output);
      EXPECT_EQ(withPlainName(asJobFile.error), plain.error);
      EXPECT_EQ(asJobFile.status, plain.status);
    }
  }
}

TEST_F(JobsAtOnceTest, AreTakenFromAListInItsOrder) {
  std::string list;
  for (int copy = 0; copy < 6; ++copy) {
    list += "jobs" + std::to_string(copy) + "\nno " + std::to_string(copy) + ".qjt\n";
  }
  WriteBytes(folder_->File("list"), list);
  const auto run = [](const std::string& jobs) {
    return RunProgram("sh",
                      {"-c", "cat list | \"$1\" --files-from - --summary --jobs \"$2\"", "sh",
                       HALVANE_REPORT, jobs},
                      folder_->path());
  };
  const ProgramRun alone = run("1");
  const ProgramRun four = run("4");
  EXPECT_EQ(alone.status, 1);
  EXPECT_TRUE(four.output == alone.output);
  EXPECT_EQ(four.error, alone.error);
  EXPECT_NE(alone.error.find("no 5.qjt"), std::string::npos);
}

TEST_F(JobsAtOnceTest, EndQuietlyWhereNobodyReadsOn) {
  const ProgramRun run =
      RunProgram("sh",
                 {"-c", "{ \"$1\" --jobs 4 --format json jobs0 jobs1; echo $? >&2; } | head -n 1",
                  "sh", HALVANE_REPORT},
                 folder_->path());
  EXPECT_TRUE(run.output.starts_with("{\"version\":"));
  EXPECT_TRUE(run.error.ends_with("141\n")) << run.error;
}

TEST_F(JobsAtOnceTest, EndWithAReasonWhereTheDiskIsFull) {
  const std::string jobs = folder_->File("jobs1");
  const ProgramRun run = RunReport({"--jobs", "4", "--format", "json", jobs}, OutputTo::FullDevice);
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.error.ends_with("halvane-report: standard output: No space left on device\n"))
      << run.error;
}

TEST_F(JobsAtOnceTest, CompleteThePageWhenTheyAreEnded) {
  for (const int signal : {SIGINT, SIGTERM}) {
    RunningProgram program({"--jobs", "3", "--files-from", "-", "--format", "html"});
    std::string names;
    for (int i = 0; i < 20; ++i) names += folder_->File("jobs0/packing-line.qjt\n");
    program.Write(names);
    // The first page is there while others are under way.
    program.ReadLine();
    program.Interrupt(signal);
    const ProgramRun run = program.End();
    EXPECT_EQ(run.status, 128 + signal);
    EXPECT_TRUE(run.output.ends_with("</body>\n</html>\n"));
    EXPECT_NE(run.error.find("; done so far: "), std::string::npos) << run.error;
  }
}

TEST_F(JobsAtOnceTest, AnswerToEachNameBeforeTheNext) {
  RunningProgram program({"--jobs", "4", "--files-from", "-", "--summary"});
  for (int i = 0; i < 10 && !HasFailure(); ++i) {
    program.Write("packing-line.qjt\n");
    EXPECT_TRUE(program.ReadLine().starts_with("{\"version\":1,\"file\":\"packing-line.qjt\""));
  }
  EXPECT_EQ(program.Finish().status, 0);
}

}  // namespace
}  // namespace halvane
