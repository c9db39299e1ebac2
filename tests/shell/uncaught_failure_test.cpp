#include <QEvent>
#include <QLineEdit>
#include <QTest>
#include <filesystem>
#include <new>

#include "core/job_file.h"
#include "shell/halvane_application.h"
#include "tests/shell/form_support.h"

namespace halvane {
namespace {

class UncaughtFailure : public ShellTest {};

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

void FailInAnEvent(FailureKind kind) {
  InAnEvent([kind] { throw RuntimeFailure(kind); });
}

TEST_F(UncaughtFailure, CopiesTheJobSaysWhereAndEndsTheProgram) {
  Module1.JobName = "Packing";
  Module1.JobDirty = kTrue;
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
  platform.SetDocumentsFolder(File("no folder"));
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
