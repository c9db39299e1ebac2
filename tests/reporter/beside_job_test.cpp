#include "reporter/beside_job.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "core/checksum.h"
#include "core/journal.h"
#include "reporter/check_command.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class BesideJobTest : public testing::Test {
 protected:
  BesideJobTest() {
    std::filesystem::create_directory(state());
    std::filesystem::create_directory(folder_.File("jobs"));
    WriteBytes(Job("a.qjt"), EmptyJobText());
  }

  [[nodiscard]] std::string state() const { return folder_.File("state"); }
  [[nodiscard]] std::string Job(const std::string& name) const {
    return folder_.File("jobs/" + name);
  }

  /// What the check says of a job, a line each, the paths of the test's folder as "~".
  std::string Said(const std::string& file, ReportFormat format = ReportFormat::Text) {
    CheckCommand command(format, state());
    std::string text;
    command.Do(text, file);
    const std::string real = std::filesystem::canonical(folder_.path()).string();
    for (std::size_t at = 0; (at = text.find(real, at)) != std::string::npos;) {
      text.replace(at, real.size(), "~");
    }
    return text;
  }

  const TemporaryFolder folder_;
};

constexpr const char* kChecksum = "0123456789abcdef";

TEST_F(BesideJobTest, NothingIsSaidWhereNothingIs) {
  WriteBytes(Job("b.qjt.previous"), EmptyJobText());
  WriteBytes(Job("ab.rescue.qjt"), EmptyJobText());
  WriteBytes(Job("a.qjt.0123456789abcdeg.previous"), EmptyJobText());
  WriteBytes(Job("a.qjt.previous.old"), EmptyJobText());
  WriteBytes(Job("a.rescue.txt"), EmptyJobText());
  WriteBytes(Job("journal-1.qjt"), EmptyJobText());
  EXPECT_EQ(Said(Job("a.qjt")), "");
}

TEST_F(BesideJobTest, KeptAndRescueCopiesAreToldWithWhatTheyAreWorth) {
  WriteBytes(Job("a.qjt.previous"), EmptyJobText());
  WriteBytes(Job("a.qjt." + std::string(kChecksum) + ".previous"), "");
  WriteBytes(Job("a.rescue.qjt"), EmptyJobText());
  WriteBytes(Job("a (2).rescue.qjt"), EmptyJobText().substr(0, 100));
  EXPECT_EQ(
      Said(Job("a.qjt")),
      "~/jobs/a.qjt: warning: \"a (2).rescue.qjt\": is a rescue copy of this job; the program "
      "reads a part of it\n"
      "~/jobs/a.qjt: warning: \"a.qjt.0123456789abcdef.previous\": is what a save that was cut "
      "short kept of this job; the program does not read it\n"
      "~/jobs/a.qjt: warning: \"a.qjt.previous\": is what a save that was cut short kept of "
      "this job; it reads whole\n"
      "~/jobs/a.qjt: warning: \"a.rescue.qjt\": is a rescue copy of this job; it reads whole\n");
}

TEST_F(BesideJobTest, TheyAreNoFailureOfTheFileAndStandInJsonToo) {
  WriteBytes(Job("a.rescue.qjt"), EmptyJobText());
  CheckCommand command(ReportFormat::Text, "");
  std::string text;
  EXPECT_FALSE(command.Do(text, Job("a.qjt")).failed);
  EXPECT_EQ(
      Said(Job("a.qjt"), ReportFormat::Json),
      "{\"version\":1,\"file\":\"~/jobs/"
      "a.qjt\",\"verdict\":\"good\",\"problems\":[{\"warning\":true,"
      "\"line\":null,\"field\":\"\",\"found\":\"a.rescue.qjt\",\"message\":\"is a rescue copy "
      "of this job; it reads whole\"}],\"error\":null}\n");
}

TEST_F(BesideJobTest, FileThatCannotBeReadHasThemBehindItsOwnProblems) {
  WriteBytes(Job("a.qjt"), "");
  WriteBytes(Job("a.qjt.previous"), EmptyJobText());
  EXPECT_EQ(Said(Job("a.qjt")),
            "~/jobs/a.qjt:1: refused: marker: the file ends where this field should stand\n"
            "~/jobs/a.qjt: warning: \"a.qjt.previous\": is what a save that was cut short kept of "
            "this job; it reads whole\n");
  std::filesystem::remove(Job("a.qjt"));
  EXPECT_EQ(Said(Job("a.qjt")),
            "~/jobs/a.qjt: warning: \"a.qjt.previous\": is what a save that was cut short kept of "
            "this job; it reads whole\n");
}

TEST_F(BesideJobTest, NumberedCopyBelongsToTheJobOfThatNameWhereThereIsOne) {
  WriteBytes(Job("a (2).rescue.qjt"), EmptyJobText());
  WriteBytes(Job("a (2).qjt"), EmptyJobText());
  EXPECT_EQ(Said(Job("a.qjt")), "");
  EXPECT_EQ(
      Said(Job("a (2).qjt")),
      "~/jobs/a (2).qjt: warning: \"a (2).rescue.qjt\": is a rescue copy of this job; it reads "
      "whole\n");
}

TEST_F(BesideJobTest, ProgramsOwnFolderIsLookedThroughToo) {
  const std::string target = std::filesystem::canonical(Job("a.qjt")).string();
  WriteBytes(state() + "/a.qjt." + ChecksumOf(target) + "." + kChecksum + ".previous",
             EmptyJobText());
  // Of a job of the same name elsewhere, and one that does not say of which.
  WriteBytes(state() + "/a.qjt." + ChecksumOf("/a.qjt") + "." + kChecksum + ".previous", "");
  WriteBytes(state() + "/a.qjt." + kChecksum + ".previous", "");
  WriteBytes(state() + "/a.rescue.qjt", EmptyJobText());
  WriteBytes(state() + "/journal-1.qjt", JournalText({EmptyJobText(), Job("a.qjt"), true}));
  WriteBytes(state() + "/journal-2.qjt", JournalText({EmptyJobText(), "/a.qjt", true}));
  WriteBytes(state() + "/journal-3.qjt", JournalText({EmptyJobText(), "", true}));
  EXPECT_EQ(
      Said(Job("a.qjt")),
      "~/jobs/a.qjt: warning: \"~/state/a.qjt." + ChecksumOf(target) +
          ".0123456789abcdef.previous\": is what a save that was cut short kept of this job; "
          "it reads whole\n"
          "~/jobs/a.qjt: warning: \"~/state/a.rescue.qjt\": is a rescue copy of a job of this "
          "name; it reads whole\n"
          "~/jobs/a.qjt: warning: \"~/state/journal-1.qjt\": is the journal of a program that "
          "had this job; it reads whole\n");
}

TEST_F(BesideJobTest, JournalBesideTheJobIsToldToo) {
  WriteBytes(Job("journal-1.qjt"), JournalText({EmptyJobText(), Job("a.qjt"), true}));
  EXPECT_EQ(Said(Job("a.qjt")),
            "~/jobs/a.qjt: warning: \"journal-1.qjt\": is the journal of a program that had this "
            "job; it reads whole\n");
}

TEST_F(BesideJobTest, LinkHasWhatStandsBesideItsTarget) {
  ASSERT_EQ(symlink("../jobs/a.qjt", folder_.File("state/link.qjt").c_str()), 0);
  WriteBytes(Job("a.qjt." + std::string(kChecksum) + ".previous"), EmptyJobText());
  WriteBytes(state() + "/link.rescue.qjt", EmptyJobText());
  CheckCommand command(ReportFormat::Text, "");
  std::string text;
  command.Do(text, state() + "/link.qjt");
  const std::string real = std::filesystem::canonical(folder_.path()).string();
  EXPECT_EQ(text, state() +
                      "/link.qjt: warning: \"link.rescue.qjt\": is a rescue copy of this job; it "
                      "reads whole\n" +
                      state() + "/link.qjt: warning: \"" + real + "/jobs/a.qjt." + kChecksum +
                      ".previous\": is what a save that was cut short kept of this job; it reads "
                      "whole\n");
}

TEST_F(BesideJobTest, LongNamesAreFoundUnderTheirShortenedOnes) {
  const std::string name(250, 'n');
  WriteBytes(Job(name + ".qjt"), EmptyJobText());
  const std::string copy = std::string(244, 'n') + ".rescue.qjt";
  WriteBytes(Job(copy), EmptyJobText());
  const std::string target = std::filesystem::canonical(Job(name + ".qjt")).string();
  const std::string kept =
      std::string(60, 'n') + "." + ChecksumOf(target) + "." + kChecksum + ".previous";
  WriteBytes(Job(kept), EmptyJobText());
  const std::string said = Said(Job(name + ".qjt"));
  EXPECT_NE(said.find("\"" + copy + "\": is a rescue copy"), std::string::npos) << said;
  EXPECT_NE(said.find("\"" + kept + "\": is what a save"), std::string::npos) << said;
}

TEST_F(BesideJobTest, FolderIsReadOnceForAllItsJobs) {
  BesideJob beside("");
  std::vector<JobProblem> problems;
  beside.AppendTo(problems, Job("a.qjt"));
  WriteBytes(Job("a.rescue.qjt"), EmptyJobText());
  beside.AppendTo(problems, Job("a.qjt"));
  EXPECT_TRUE(problems.empty());
}

}  // namespace
}  // namespace halvane
