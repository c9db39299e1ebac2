#include "shell/job_keeper.h"

#include <QTest>
#include <QTimer>
#include <filesystem>

#include "core/job_file.h"
#include "core/rescue_copy.h"
#include "tests/support/form_support.h"
#include "tools/strain_index/frm_si.h"

namespace halvane {
namespace {

class JobKeeperTest : public ShellTest {
 protected:
  JobKeeperTest() {
    platform.SetStateFolder(state());
    // The application's own has nothing to say here, whatever was typed in the tests before.
    Find<QTimer>(Find<JobKeeper>(*qApp, "JobKeeper"), "JournalTimer").stop();
  }

  [[nodiscard]] std::string state() const { return folder.File("state"); }

  [[nodiscard]] std::vector<std::string> Journals() const {
    std::vector<std::string> paths;
    if (!Exists(state())) return paths;
    for (const auto& entry : std::filesystem::directory_iterator(state())) {
      paths.push_back(entry.path().string());
    }
    return paths;
  }

  /// What stands in the one journal; empty where there is none.
  [[nodiscard]] std::string Journal() const {
    const auto paths = Journals();
    EXPECT_LE(paths.size(), 1U);
    return paths.empty() ? "" : BytesOf(paths[0]);
  }

  QTimer& timer() { return Find<QTimer>(keeper, "JournalTimer"); }

  /// The user does something, and a second goes by.
  void InputAndASecond() {
    keeper.NoteInput();
    timer().start(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !timer().isActive(); }));
  }

  void LeaveJournal(const char* name, const JournalEntry& entry) const {
    std::filesystem::create_directories(state());
    WriteBytes(state() + "/" + name, JournalText(entry));
  }

  JobKeeper keeper;
};

const std::string kNoFile = "\"halvane-journal\",1,\"\",-1\r\n";

TEST_F(JobKeeperTest, ChangedJobIsInTheJournalASecondAfterTheFirstInput) {
  EXPECT_EQ(timer().interval(), 1000);
  EXPECT_FALSE(timer().isActive());
  keeper.NoteInput();
  ASSERT_TRUE(timer().isActive());
  const int id = timer().timerId();
  keeper.NoteInput();
  // More typing does not put it off.
  EXPECT_EQ(timer().timerId(), id);
  EXPECT_EQ(Journal(), "");

  Module1.JobDirty = kTrue;
  InputAndASecond();
  EXPECT_EQ(Journal(), EmptyJobText() + kNoFile);
  // Nothing happens any more: the program does not wake up.
  EXPECT_FALSE(timer().isActive());

  Module1.JobFileName = "/jobs/a.qjt";
  Module1.Hand = 1;
  InputAndASecond();
  EXPECT_EQ(Journal(), RescueBytes(Module1) + "\"halvane-journal\",1,\"/jobs/a.qjt\",-1\r\n");
  keeper.End();
}

TEST_F(JobKeeperTest, JobThatAFailedSaveMarkedAsSavedHasAJournalThatSaysSo) {
  Module1.JobFileName = folder.File("none/a.qjt");
  EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  InputAndASecond();
  EXPECT_EQ(Journal(),
            EmptyJobText() + "\"halvane-journal\",1,\"" + Module1.JobFileName + "\",0\r\n");
  keeper.End();
}

TEST_F(JobKeeperTest, JobThatIsAsItWasSavedHasNone) {
  Module1.JobName = "Packing";
  InputAndASecond();
  EXPECT_EQ(Journal(), "");
}

TEST_F(JobKeeperTest, JournalGoesWithTheSaveAndComesWithTheNextChange) {
  Module1.JobDirty = kTrue;
  InputAndASecond();
  ASSERT_NE(Journal(), "");
  Module1.JobFileName = folder.File("job.qjt");
  WriteJobFile();
  keeper.NoteInput();
  EXPECT_TRUE(Journals().empty());
  Module1.JobDirty = kTrue;
  InputAndASecond();
  EXPECT_EQ(Journals().size(), 1U);
  keeper.End();
  EXPECT_TRUE(Journals().empty());
}

TEST_F(JobKeeperTest, EveryInputOfTheUserIsNoted) {
  auto& timer = Find<QTimer>(Find<JobKeeper>(*qApp, "JobKeeper"), "JournalTimer");
  timer.stop();
  const auto form = LoadedStrainIndex();
  const auto noted = [&timer] {
    const bool active = timer.isActive();
    timer.stop();
    return active;
  };
  noted();
  QTest::mouseMove(form.get(), QPoint(3, 3));
  EXPECT_FALSE(noted());
  QTest::keyPress(form.get(), Qt::Key_Shift);
  EXPECT_TRUE(noted());
  QTest::keyRelease(form.get(), Qt::Key_Shift);
  EXPECT_TRUE(noted());
  QTest::mousePress(form.get(), Qt::LeftButton, {}, QPoint(3, 3));
  EXPECT_TRUE(noted());
  QTest::mouseRelease(form.get(), Qt::LeftButton, {}, QPoint(3, 3));
  EXPECT_TRUE(noted());
}

TEST_F(JobKeeperTest, RescueWritesTheCopyAndRemovesTheJournal) {
  Module1.JobDirty = kTrue;
  InputAndASecond();
  const JobKeeper::Rescue rescue = keeper.RescueJob();
  EXPECT_TRUE(rescue.wasNeeded);
  EXPECT_EQ(rescue.copy, File("Job.rescue.qjt"));
  EXPECT_EQ(rescue.reason, "");
  EXPECT_EQ(rescue.journal, "");
  EXPECT_TRUE(Journals().empty());
}

TEST_F(JobKeeperTest, EndRescuesAJobThatAFailedSaveMarkedAsSavedAndNoOther) {
  Module1.JobName = "Packing";
  Module1.JobDirty = kTrue;
  keeper.End();
  EXPECT_EQ(folder.Names(), "") << "the user has answered";
  Module1.JobFileName = folder.File("missing/job.qjt");
  EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  ASSERT_EQ(Module1.JobDirty, kFalse);
  keeper.End();
  EXPECT_EQ(folder.Names(), "job.rescue.qjt");
  EXPECT_EQ(BytesOf(folder.File("job.rescue.qjt")), RescueBytes(Module1));
  Module1.JobFileName = folder.File("job.qjt");
  WriteJobFile();
  std::filesystem::remove(folder.File("job.rescue.qjt"));
  keeper.End();
  EXPECT_EQ(folder.Names(), "job.qjt");
}

TEST_F(JobKeeperTest, RescueThatFindsNoPlaceBringsTheJournalUpToDateAndKeepsIt) {
  WriteBytes(folder.File("file"), "");
  platform.SetDocumentsFolder(File("file"));
  Module1.JobDirty = kTrue;
  InputAndASecond();
  Module1.Hand = 1;
  const JobKeeper::Rescue rescue = keeper.RescueJob();
  EXPECT_EQ(rescue.copy, "");
  EXPECT_TRUE(rescue.reason.startsWith("File error: ")) << rescue.reason.toStdString();
  keeper.End();
  ASSERT_EQ(Journals().size(), 1U);
  EXPECT_EQ(rescue.journal.toStdString(), Journals()[0]);
  EXPECT_EQ(Journal(), RescueBytes(Module1) + kNoFile);
}

TEST_F(JobKeeperTest, WithoutAFolderForItThereIsNoJournalAndNoWord) {
  WriteBytes(folder.File("file"), "");
  platform.SetStateFolder(folder.File("file"));
  Module1.JobDirty = kTrue;
  InputAndASecond();
  platform.SetStateFolder("");
  InputAndASecond();
  EXPECT_EQ(folder.Names(), "file");
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(JobKeeperTest, LeftJournalsBecomeCopiesWhereTheirJobsStand) {
  std::filesystem::create_directory(folder.File("jobs"));
  LeaveJournal("journal-1.qjt", {EmptyJobText(), folder.File("jobs/a.qjt"), true});
  LeaveJournal("journal-2.qjt", {EmptyJobWith(2, "0"), "", false});
  Module1.JobName = "of this run";
  const JobState before = Module1;
  JobKeeper::RescueLeftJournals();
  EXPECT_EQ(BytesOf(folder.File("jobs/a.rescue.qjt")), EmptyJobText());
  EXPECT_EQ(BytesOf(folder.File("Job.rescue.qjt")), EmptyJobText());
  EXPECT_TRUE(Journals().empty());
  EXPECT_TRUE(Module1 == before);
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(JobKeeperTest, LeftJournalOfAJobThatStandsInItsFileJustGoes) {
  WriteBytes(folder.File("a.qjt"), EmptyJobText());
  LeaveJournal("journal-1.qjt", {EmptyJobText(), folder.File("a.qjt"), true});
  JobKeeper::RescueLeftJournals();
  EXPECT_TRUE(Journals().empty());
  EXPECT_EQ(folder.Names(), "a.qjt state");
}

TEST_F(JobKeeperTest, LeftJournalThatFindsNoPlaceStays) {
  WriteBytes(folder.File("file"), "");
  platform.SetDocumentsFolder(File("file"));
  LeaveJournal("journal-1.qjt", {EmptyJobText(), folder.File("none/a.qjt"), true});
  JobKeeper::RescueLeftJournals();
  EXPECT_EQ(Journals().size(), 1U);
}

}  // namespace
}  // namespace halvane
