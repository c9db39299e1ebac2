#include <QEvent>
#include <QLineEdit>
#include <QTest>
#include <filesystem>
#include <new>
#include <stdexcept>

#include "core/job_file.h"
#include "shell/halvane_application.h"
#include "tests/support/form_support.h"

namespace halvane {
namespace {

class UncaughtFailure : public ShellTest {
 protected:
  /// Jobs that are as they were saved get no copy.
  UncaughtFailure() { Module1.JobDirty = kTrue; }
};

/// Does something in its event handler.
class Handler : public QObject {
 public:
  explicit Handler(std::function<void()> action) : action_(std::move(action)) {}

  bool event(QEvent* /*event*/) override {
    action_();
    return true;
  }

 private:
  std::function<void()> action_;
};

/// Runs `action` as the handler of an event.
void InAnEvent(std::function<void()> action) {
  Handler handler(std::move(action));
  QEvent event(QEvent::User);
  QCoreApplication::sendEvent(&handler, &event);
}

std::vector<std::string> FilesIn(const std::string& path) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(path)) {
    files.push_back(entry.path().string());
  }
  return files;
}

void FailInAnEvent(FailureKind kind) {
  InAnEvent([kind] { throw RuntimeFailure(kind); });
}

TEST_F(UncaughtFailure, CopiesTheJobSaysWhereAndEndsTheProgram) {
  Module1.JobName = "Packing";
  Module1.JobFileName = folder.File("job.qjt");
  WriteBytes(folder.File("job.qjt"), "the old file");
  bool copyWasThere = false;
  platform.WillAnswer(Answer::Ok);
  platform.WhileNextMessageStands([&] { copyWasThere = Exists(folder.File("job.rescue.qjt")); });
  FailInAnEvent(FailureKind::DivisionByZero);
  EXPECT_EQ(platform.messages(),
            (std::vector{ShownMessage{"Halvane Tools",
                                      "Division by zero.\n\nHalvane Tools has to end.\n\n"
                                      "A copy of the job was saved as\n" +
                                          File("job.rescue.qjt"),
                                      {Answer::Ok}}}));
  EXPECT_TRUE(copyWasThere);
  EXPECT_EQ(platform.ends(), std::vector<int>{1});
  EXPECT_EQ(BytesOf(folder.File("job.qjt")), "the old file");
  EXPECT_EQ(BytesOf(folder.File("job.rescue.qjt")), EmptyJobWith(4, "\"\",\"Packing\",\"\",0,8"));
}

TEST_F(UncaughtFailure, JobWithoutAFileGoesToTheDocumentsFolder) {
  platform.WillAnswer(Answer::Ok);
  FailInAnEvent(FailureKind::Overflow);
  EXPECT_EQ(folder.Names(), "Job.rescue.qjt");
  EXPECT_EQ(BytesOf(folder.File("Job.rescue.qjt")), EmptyJobText());
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_TRUE(platform.messages()[0].text.endsWith(File("Job.rescue.qjt")));
}

TEST_F(UncaughtFailure, CopyThatCanStandNowhereIsSaidSo) {
  WriteBytes(folder.File("file"), "");
  platform.SetDocumentsFolder(File("file"));
  platform.WillAnswer(Answer::Ok);
  FailInAnEvent(FailureKind::Overflow);
  ASSERT_EQ(platform.messages().size(), 1U);
  const QString text = platform.messages()[0].text;
  EXPECT_TRUE(
      text.startsWith("Overflow.\n\nHalvane Tools has to end.\n\n"
                      "The job could not be saved.\nFile error: "))
      << text.toStdString();
  EXPECT_EQ(platform.ends(), std::vector<int>{1});
}

TEST_F(UncaughtFailure, WithoutACopyTheJournalIsNamedAndStays) {
  WriteBytes(folder.File("file"), "");
  platform.SetDocumentsFolder(File("file"));
  platform.SetStateFolder(folder.File("state"));
  platform.WillAnswer(Answer::Ok);
  FailInAnEvent(FailureKind::Overflow);
  const std::vector<std::string> journals = FilesIn(folder.File("state"));
  ASSERT_EQ(journals.size(), 1U);
  ASSERT_EQ(platform.messages().size(), 1U);
  const QString text = platform.messages()[0].text;
  EXPECT_TRUE(
      text.startsWith("Overflow.\n\nHalvane Tools has to end.\n\n"
                      "The job could not be saved.\nFile error: "))
      << text.toStdString();
  EXPECT_TRUE(text.endsWith("\n\nWhat was in it a moment ago is in the journal\n" +
                            QString::fromStdString(journals[0])))
      << text.toStdString();
  EXPECT_TRUE(BytesOf(journals[0]).starts_with(EmptyJobText()));
}

TEST_F(UncaughtFailure, JobThatIsAsItWasSavedGetsNoCopy) {
  Module1.JobFileName = folder.File("job.qjt");
  WriteJobFile();
  platform.WillAnswer(Answer::Ok);
  FailInAnEvent(FailureKind::Overflow);
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_EQ(platform.messages()[0].text,
            "Overflow.\n\nHalvane Tools has to end.\n\n"
            "The job has no changes that are not saved.");
  EXPECT_EQ(folder.Names(), "job.qjt");
}

TEST_F(UncaughtFailure, SameJobTwiceGetsOneCopy) {
  Module1.JobFileName = folder.File("job.qjt");
  for (int i = 0; i < 2; ++i) {
    platform.WillAnswer(Answer::Ok);
    FailInAnEvent(FailureKind::Overflow);
    EXPECT_TRUE(platform.messages().back().text.endsWith(File("job.rescue.qjt")));
  }
  EXPECT_EQ(folder.Names(), "job.rescue.qjt");
}

TEST_F(UncaughtFailure, WhateverIsThrownIsOne) {
  Module1.JobFileName = folder.File("job.qjt");
  platform.WillAnswer(Answer::Ok);
  InAnEvent([] { throw std::out_of_range("beyond the end"); });
  platform.WillAnswer(Answer::Ok);
  InAnEvent([] { throw 5; });
  ASSERT_EQ(platform.messages().size(), 2U);
  EXPECT_TRUE(platform.messages()[0].text.startsWith(
      "Unexpected failure: beyond the end.\n\nHalvane Tools has to end.\n\nA copy "));
  EXPECT_TRUE(platform.messages()[1].text.startsWith(
      "Unexpected failure.\n\nHalvane Tools has to end.\n\nA copy "));
  EXPECT_EQ(platform.ends(), (std::vector<int>{1, 1}));
  EXPECT_EQ(folder.Names(), "job.rescue.qjt");
}

TEST_F(UncaughtFailure, EndOfTheSessionRescuesTheJobWithoutAWord) {
  Module1.JobFileName = folder.File("job.qjt");
  QEvent quit(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &quit);
  EXPECT_EQ(folder.Names(), "job.rescue.qjt");
  EXPECT_TRUE(platform.messages().empty());
  EXPECT_EQ(platform.ends(), std::vector<int>{0});
}

TEST_F(UncaughtFailure, MemoryThatIsNotThereIsAFailureToo) {
  Module1.JobFileName = folder.File("job.qjt");
  platform.WillAnswer(Answer::Ok);
  InAnEvent([] { throw std::bad_alloc(); });
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_TRUE(platform.messages()[0].text.startsWith("Out of memory.\n"));
  EXPECT_EQ(folder.Names(), "job.rescue.qjt");
  EXPECT_EQ(platform.ends(), std::vector<int>{1});
}

TEST_F(UncaughtFailure, SecondOneWhileTheMessageStandsIsIgnored) {
  Module1.JobFileName = folder.File("job.qjt");
  platform.WillAnswer(Answer::Ok);
  platform.WhileNextMessageStands([] { FailInAnEvent(FailureKind::Overflow); });
  FailInAnEvent(FailureKind::DivisionByZero);
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_TRUE(platform.messages()[0].text.startsWith("Division by zero."));
  EXPECT_EQ(folder.Names(), "job.rescue.qjt");
  EXPECT_EQ(platform.ends(), std::vector<int>{1});
}

TEST_F(UncaughtFailure, CopyIsNeverWrittenOverAnotherFile) {
  Module1.JobFileName = folder.File("job.qjt");
  WriteBytes(folder.File("job.rescue.qjt"), "of last week");
  platform.WillAnswer(Answer::Ok);
  FailInAnEvent(FailureKind::Overflow);
  EXPECT_EQ(BytesOf(folder.File("job.rescue.qjt")), "of last week");
  EXPECT_EQ(folder.Names(), "job (2).rescue.qjt job.rescue.qjt");
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_TRUE(platform.messages()[0].text.endsWith(File("job (2).rescue.qjt")));
}

TEST_F(UncaughtFailure, EventsWithoutOnePassThrough) {
  bool handled = false;
  InAnEvent([&] { handled = true; });
  EXPECT_TRUE(handled);
  EXPECT_TRUE(platform.messages().empty());
}

}  // namespace
}  // namespace halvane
