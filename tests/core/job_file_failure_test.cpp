#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/job_file.h"
#include "core/job_text_reader.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class JobFileFailure : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() {
    Module1 = JobState{};
    Module1.JobFileName = folder_.File("job.qjt");
  }
  /// How opening `bytes` over the present job ends.
  std::string OpenFailure(std::string_view bytes) {
    WriteBytes(folder_.File("job.qjt"), bytes);
    return FailureOf(OpenJobFile);
  }

  const TemporaryFolder folder_;
};

struct Field {
  std::string text;
  std::size_t end;  ///< behind its separator
};

/// The fields of a written job in order, quotes included.
std::vector<Field> FieldsOf(std::string_view bytes) {
  std::vector<Field> fields;
  std::string text;
  bool quoted = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '"') quoted = !quoted;
    if (!quoted && bytes[i] == '\r') continue;
    if (!quoted && (bytes[i] == ',' || bytes[i] == '\n')) {
      fields.push_back({text, i + 1});
      text.clear();
    } else {
      text += bytes[i];
    }
  }
  return fields;
}

constexpr std::size_t kHeadFields = 88;
constexpr std::size_t kTaskFields = 49;
constexpr std::size_t kTaskCountField = 5;

/// The first copy of a field that the file holds more than once, else the field itself.
std::size_t FirstCopyOf(std::size_t field) {
  if (field == 13) return 6;
  if (field < kHeadFields) return field;
  const std::size_t inTask = (field - kHeadFields) % kTaskFields;
  const std::size_t task = field - inTask;
  if (inTask == 8) return task + 2;
  if (inTask >= 15 && inTask <= 17) return task + inTask - 10;
  if (inTask == 19 || inTask == 20) return task + inTask - 10;
  if (inTask >= 21 && inTask <= 24) return task + inTask - 10;
  return field;
}

TEST_F(JobFileFailure, FileThatEndsBeforeItsTaskCountChangesNothing) {
  const std::vector<Field> fields = FieldsOf(FilledJobText());
  for (std::size_t count = 0; count <= kTaskCountField; ++count) {
    SCOPED_TRACE(count);
    StartFresh();
    Module1.JobDirty = kTrue;
    JobState expected = Module1;
    const std::size_t end = count == 0 ? 0 : fields[count - 1].end;
    EXPECT_EQ(OpenFailure(FilledJobText().substr(0, end)), "InputPastEnd");
    expected.JobFileOpen = true;
    EXPECT_EQ(Module1, expected);
  }
}

TEST_F(JobFileFailure, FileThatEndsAtAnyFieldKeepsWhatWasReadAndStaysOpen) {
  const std::vector<Field> fields = FieldsOf(FilledJobText());
  ASSERT_EQ(fields.size(), kHeadFields + 2 * kTaskFields);
  Module1.TaskCount = Integer{2};
  ResizeTaskArrays();
  const std::vector<Field> unread = FieldsOf(JobFileBytes(Module1));
  ASSERT_EQ(unread.size(), fields.size());

  for (std::size_t count = kTaskCountField + 1; count < fields.size(); ++count) {
    SCOPED_TRACE(count);
    StartFresh();
    Module1.JobDirty = kTrue;
    EXPECT_EQ(OpenFailure(FilledJobText().substr(0, fields[count - 1].end)), "InputPastEnd");
    EXPECT_EQ(Module1.JobDirty, kFalse);
    EXPECT_TRUE(Module1.JobFileOpen);
    const std::vector<Field> after = FieldsOf(JobFileBytes(Module1));
    ASSERT_EQ(after.size(), fields.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const bool wasRead = FirstCopyOf(i) < count;
      EXPECT_EQ(after[i].text, wasRead ? fields[i].text : unread[i].text) << "field " << i;
    }
  }
}

TEST_F(JobFileFailure, ShortFileTellsWhereItEnds) {
  const std::vector<Field> fields = FieldsOf(FilledJobText());
  WriteBytes(Module1.JobFileName, FilledJobText().substr(0, fields[kHeadFields + 2].end));
  try {
    OpenJobFile();
    FAIL() << "read";
  } catch (const JobReadFailure& failure) {
    EXPECT_EQ(failure.kind(), FailureKind::InputPastEnd);
    EXPECT_EQ(failure.line(), 66);
    EXPECT_EQ(failure.field(), "OcraTaskDuration(1)");
    EXPECT_EQ(failure.found(), "");
  }
}

struct WrongRow {
  int line;
  const char* text;
  const char* kind;
  const char* field;
  const char* found;
};

TEST_F(JobFileFailure, NumberThatIsNoneTellsLineFieldAndText) {
  const std::vector<WrongRow> rows{
      {3, "8,two,0", "TypeMismatch", "JobCycleTime", "two"},
      {3, "8,2 min,0", "TypeMismatch", "JobCycleTime", "2 min"},
      {3, "8,0,32768", "Overflow", "JobFileFlag", "32768"},
      {3, "1E999,0,0", "Overflow", "JobDurationPerDay", "1E999"},
      {4, "\"\",\"\",\"\",\"left\",8", "TypeMismatch", "Hand", "left"},
      {6, "x", "TypeMismatch", "RulaControlState(0)", "x"},
      {25, "x", "TypeMismatch", "RulaControlState(19)", "x"},
      {26, "-32769", "Overflow", "RebaControlState(0)", "-32769"},
      {48, "x", "TypeMismatch", "RebaControlState(22)", "x"},
      {49, "0,0,0,x,0,0,0", "TypeMismatch", "SiEffortObservationMinutes", "x"},
      {49, "0,0,0,0,0,0,1E9", "Overflow", "SiSpeedPick", "1E9"},
      {50, "x", "TypeMismatch", "OcraComboChoice(0)", "x"},
      {63, "x", "TypeMismatch", "OcraComboChoice(13)", "x"},
      {64, "0,0,x,0,0,0", "TypeMismatch", "OcraWristHold", "x"},
      {64, "0,0,0,0,0,x", "TypeMismatch", "OcraElbowGesture", "x"},
  };
  for (const WrongRow& row : rows) {
    SCOPED_TRACE(std::string("line ") + std::to_string(row.line) + ": " + row.text);
    StartFresh();
    Module1.JobDirty = kTrue;
    Module1.RebaNeckFactors.fill(1);
    WriteBytes(Module1.JobFileName, EmptyJobWith(row.line, row.text));
    try {
      OpenJobFile();
      ADD_FAILURE() << "read";
    } catch (const JobReadFailure& failure) {
      EXPECT_EQ(KindName(failure.kind()), row.kind);
      EXPECT_EQ(failure.line(), row.line);
      EXPECT_EQ(failure.field(), row.field);
      EXPECT_EQ(failure.found(), row.found);
    }
    EXPECT_TRUE(Module1.JobFileOpen);
    EXPECT_EQ(Module1.JobDirty, kFalse);
    EXPECT_EQ(Module1.RebaNeckFactors.at(0), 0);
  }
}

TEST_F(JobFileFailure, WrongNumberInATaskTellsTaskAndSlot) {
  std::string text = EmptyJobText("2") + UntouchedTaskText(1) + UntouchedTaskText(2);
  text.replace(text.rfind("0,0\r\n"), 3, "0,x");
  WriteBytes(Module1.JobFileName, text);
  try {
    OpenJobFile();
    FAIL() << "read";
  } catch (const JobReadFailure& failure) {
    EXPECT_EQ(failure.line(), 94);
    EXPECT_EQ(failure.field(), "CtdPostureDuration(2, 7)");
  }
  EXPECT_EQ(Module1.TaskNames.at(2), "Task 2");
}

TEST_F(JobFileFailure, FileLeftOpenMakesEveryLaterUseFail) {
  EXPECT_EQ(OpenFailure("\"qjt\",1"), "InputPastEnd");
  JobState before = Module1;
  EXPECT_EQ(OpenFailure(EmptyJobText()), "FileAlreadyOpen");
  EXPECT_EQ(Module1, before);

  before.JobInNoFile = true;
  Module1.JobDirty = kTrue;
  Module1.RulaNeckFactors.fill(1);
  EXPECT_EQ(FailureOf(ReadJobFile), "FileAlreadyOpen");
  EXPECT_EQ(Module1, before);

  Module1.JobDirty = kTrue;
  Module1.JobFileName = folder_.File("other.qjt");
  EXPECT_EQ(FailureOf(WriteJobFile), "FileAlreadyOpen");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_TRUE(Module1.JobFileOpen);
  EXPECT_EQ(folder_.Names(), "job.qjt");

  JobReset();
  EXPECT_EQ(FailureOf(OpenJobFile), "FileAlreadyOpen");
}

TEST_F(JobFileFailure, PathThatCannotBeOpenedLeavesNothingOpen) {
  WriteBytes(folder_.File("file"), "");
  const std::vector<std::string> paths{
      "",
      folder_.File("missing.qjt"),
      folder_.File("missing/job.qjt"),
      folder_.File("file/job.qjt"),
      folder_.path(),
      folder_.File(std::string(300, 'x')),
  };
  for (const std::string& path : paths) {
    Module1 = JobState{};
    Module1.JobFileName = path;
    Module1.JobDirty = kTrue;
    const JobState before = Module1;
    EXPECT_EQ(FailureOf(OpenJobFile), "FileError") << path;
    EXPECT_EQ(Module1, before) << path;
    EXPECT_EQ(FailureOf(ReadJobFile), "FileError") << path;
    EXPECT_FALSE(Module1.JobFileOpen) << path;
    EXPECT_EQ(Module1.JobDirty, kFalse) << path;
  }
}

TEST_F(JobFileFailure, PathThatCannotBeWrittenLeavesNothingOpenAndTheJobMarkedAsSaved) {
  WriteBytes(folder_.File("file"), "");
  const std::string names = folder_.Names();
  const std::vector<std::string> paths{
      "",
      folder_.File("missing/job.qjt"),
      folder_.File("file/job.qjt"),
      folder_.path(),
      folder_.File(std::string(300, 'x')),
  };
  for (const std::string& path : paths) {
    Module1 = JobState{};
    Module1.JobFileName = path;
    Module1.JobDirty = kTrue;
    EXPECT_EQ(FailureOf(WriteJobFile), "FileError") << path;
    EXPECT_FALSE(Module1.JobFileOpen) << path;
    EXPECT_EQ(Module1.JobDirty, kFalse) << path;
    EXPECT_EQ(folder_.Names(), names) << path;
  }
}

TEST_F(JobFileFailure, MessageNamesTheFileAndTheReason) {
  Module1.JobFileName = folder_.path();
  try {
    OpenJobFile();
    FAIL() << "opened";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.what(), "File error: " + folder_.path() + ": Is a directory");
  }
}

TEST_F(JobFileFailure, Task41FailsAtItsLoadsWhenRead) {
  std::string text = EmptyJobText("41");
  for (int task = 1; task <= 41; ++task) text += UntouchedTaskText(task);
  // The neck of task 41, in the last line before its loads.
  text.replace(text.rfind(",,,,,,,0"), 8, ",,,,,,,7");
  Module1.JobDirty = kTrue;
  EXPECT_EQ(OpenFailure(text), "SubscriptOutOfRange");
  EXPECT_EQ(Module1.TaskNames.at(41), "Task 41");
  EXPECT_EQ(Module1.CtdNeckFlexion.at(41), 7);
  EXPECT_EQ(Module1.TaskCount, TaggedField(Integer{41}));
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_TRUE(Module1.JobFileOpen);
}

TEST_F(JobFileFailure, Task41IsTestedBeforeItsLineOfLoadsIsRead) {
  std::string text = EmptyJobText("41");
  for (int task = 1; task <= 41; ++task) text += UntouchedTaskText(task);
  text.resize(text.size() - 8 * 5);  // the eight lines of loads of the last task
  EXPECT_EQ(OpenFailure(text), "SubscriptOutOfRange");
}

TEST_F(JobFileFailure, Task41FailsAtItsLoadsWhenWrittenWithTheLinesBeforeInTheFile) {
  std::string expected = EmptyJobText("41");
  for (Integer task = 1; task <= 41; ++task) {
    Module1.TaskCount = task;
    NewTaskRecord();
    expected += UntouchedTaskText(task);
  }
  expected.resize(expected.size() - 8 * 5);
  WriteBytes(Module1.JobFileName, "the old job");
  Module1.JobDirty = kTrue;
  const std::string message = MessageOf(WriteJobFile);
  EXPECT_EQ(BytesOf(folder_.File("job.qjt")), expected);
  const std::string copy = folder_.File(NameLike(folder_, "job.qjt.", ".previous"));
  EXPECT_EQ(BytesOf(copy), "the old job");
  EXPECT_EQ(message, "Subscript out of range: " + Module1.JobFileName +
                         " could not be written whole. " + copy +
                         " holds the job as it was before");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_TRUE(Module1.JobFileOpen);
}

void MakeTask41() {
  for (Integer task = 1; task <= 41; ++task) {
    Module1.TaskCount = task;
    NewTaskRecord();
  }
}

TEST_F(JobFileFailure, Task41IsWrittenOverNothingWithTheLinesBeforeInTheFile) {
  MakeTask41();
  EXPECT_EQ(MessageOf(WriteJobFile),
            "Subscript out of range: " + Module1.JobFileName + " could not be written whole");
  EXPECT_TRUE(BytesOf(Module1.JobFileName).starts_with(EmptyJobText("41")));
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(JobFileFailure, FortyTasksAreWrittenAndRead) {
  std::string expected = EmptyJobText("40");
  for (Integer task = 1; task <= 40; ++task) {
    Module1.TaskCount = task;
    NewTaskRecord();
    expected += UntouchedTaskText(task);
  }
  WriteJobFile();
  EXPECT_EQ(BytesOf(Module1.JobFileName), expected);
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened);
  EXPECT_EQ(Module1.TaskNames.at(40), "Task 40");
}

struct CountRow {
  const char* text;
  const char* failure;
  TaggedField taskCount;  ///< after the failure
};

TEST_F(JobFileFailure, TaskCountThatNoArrayCanHaveLeavesTheRestOfTheJobAndTheFileClosed) {
  const std::vector<CountRow> rows{
      {"1E9", "Overflow", 1E9},
      {"1000000000", "Overflow", 1E9},
      {"\"1E9\"", "Overflow", "1E9"},
      {"\"1E999\"", "Overflow", "1E999"},
      {"32768", "Overflow", 32768.0},
      {"32767.5", "Overflow", 32767.5},
      {"-1", "SubscriptOutOfRange", Integer{-1}},
      {"\"-1\"", "SubscriptOutOfRange", "-1"},
      {"-1E300", "SubscriptOutOfRange", -1E300},
  };
  for (const CountRow& row : rows) {
    StartFresh();
    Module1.TaskCount = Integer{1};
    NewTaskRecord();
    Module1.JobAnalyst = "analyst";
    Module1.JobDirty = kTrue;
    Module1.RebaLegFactors.fill(1);
    Module1.CtdLoadHeld.at(1, 1) = 2;
    JobState expected = Module1;
    expected.TaskCount = row.taskCount;
    EXPECT_EQ(OpenFailure(EmptyJobText(row.text)), row.failure) << row.text;
    EXPECT_EQ(Module1, expected) << row.text;
  }
}

TEST_F(JobFileFailure, TaskCountThatIsNoNumberAtAllFailsAtItsFieldAndStaysOpen) {
  EXPECT_EQ(OpenFailure(EmptyJobText("1E999")), "Overflow");
  EXPECT_EQ(Module1.TaskCount, TaggedField(Integer{0}));
  EXPECT_TRUE(Module1.JobFileOpen);
}

TEST_F(JobFileFailure, LargestTaskCountRunsOutOfLines) {
  EXPECT_EQ(OpenFailure(EmptyJobText("32767.4")), "InputPastEnd");
  EXPECT_EQ(Module1.TaskNames.upperBound(), 32767);
  EXPECT_TRUE(Module1.JobFileOpen);
}

}  // namespace
}  // namespace halvane
