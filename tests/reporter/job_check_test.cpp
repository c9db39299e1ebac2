#include "reporter/job_check.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <ctime>

#include "reporter/check_command.h"
#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class JobCheckTest : public testing::Test {
 protected:
  std::string Write(std::string_view bytes) {
    const std::string path = folder_.File("a.qjt");
    WriteBytes(path, bytes);
    return path;
  }

  /// What the command says of a file with these bytes, the file's name as "a.qjt".
  std::string Said(std::string_view bytes) {
    std::string text;
    AppendCheckText(text, "a.qjt", CheckJobFile(Write(bytes)));
    return text;
  }

  JobVerdict VerdictOn(std::string_view bytes) { return CheckJobFile(Write(bytes)).verdict; }

  TemporaryFolder folder_;
};

/// An empty job with a task whose lines, counted from 1, are partly others.
std::string JobWithTask(const std::vector<std::pair<int, std::string>>& changes) {
  std::string task = UntouchedTaskText(1);
  std::string text = EmptyJobText("1");
  int number = 0;
  for (std::size_t start = 0; start < task.size();) {
    const std::size_t end = task.find("\r\n", start) + 2;
    ++number;
    std::string line = task.substr(start, end - start);
    for (const auto& [changed, to] : changes) {
      if (changed == number) line = to + "\r\n";
    }
    text += line;
    start = end;
  }
  return text;
}

struct BadRow {
  std::string label;
  std::string bytes;
  JobVerdict verdict;
  std::string said;
};

TEST_F(JobCheckTest, TellsWhatTheProgramWouldNotTake) {
  std::string task41 = EmptyJobText("41");
  for (int task = 1; task <= 41; ++task) task41 += UntouchedTaskText(task);
  const std::vector<BadRow> rows = {
      {"empty", "", JobVerdict::Refused,
       "a.qjt:1: refused: marker: the file ends where this field should stand\n"},
      {"other marker", "\r\n" + EmptyJobWith(1, "\"QJT\",1,0,0,0"), JobVerdict::Refused,
       "a.qjt:1: refused: marker: is not \"qjt\", so this is no job file\n"},
      {"marker in capitals", EmptyJobWith(1, "\"QJT\",1,0,0,0"), JobVerdict::Refused,
       "a.qjt:1: refused: marker: \"QJT\": is not \"qjt\", so this is no job file\n"},
      {"no number of tasks", EmptyJobText("-1"), JobVerdict::Refused,
       "a.qjt:2: refused: TaskCount: \"-1\": is no number of tasks\n"},
      {"absurd number of tasks", EmptyJobText("40000"), JobVerdict::Refused,
       "a.qjt:2: refused: TaskCount: \"40000\": is beyond what the field can hold\n"},
      {"ends in the first line", "qjt,1", JobVerdict::Refused,
       "a.qjt:1: refused: constant 2: the file ends where this field should stand\n"},
      {"text in a number", EmptyJobWith(8, "x"), JobVerdict::ReadInPart,
       "a.qjt:8: read in part: RulaControlState(2): \"x\": is no number\n"},
      {"beyond 16 bits", EmptyJobWith(48, "32768"), JobVerdict::ReadInPart,
       "a.qjt:48: read in part: RebaControlState(22): \"32768\": is beyond what the field can "
       "hold\n"},
      {"a task too few", EmptyJobText("1"), JobVerdict::ReadInPart,
       "a.qjt:65: read in part: TaskNames(1): the file ends where this field should stand\n"},
      {"task 41", task41, JobVerdict::ReadInPart,
       "a.qjt:2: warning: TaskCount: \"41\": is more than the 40 tasks of a job\n"
       "a.qjt:672: read in part: CtdLoadHeld(41, 0): \"0\": belongs to task 41, which has no "
       "place in a job\n"},
      {"cut before task 41", EmptyJobText("41"), JobVerdict::ReadInPart,
       "a.qjt:2: warning: TaskCount: \"41\": is more than the 40 tasks of a job\n"
       "a.qjt:65: read in part: TaskNames(1): the file ends where this field should stand\n"},
      {"long text", EmptyJobWith(8, std::string(41, 'x')), JobVerdict::ReadInPart,
       "a.qjt:8: read in part: RulaControlState(2): \"" + std::string(40, 'x') +
           "...\": is no number\n"},
      {"steering text", EmptyJobWith(8, "\x1B[31m"), JobVerdict::ReadInPart,
       "a.qjt:8: read in part: RulaControlState(2): \"\uFFFD[31m\": is no number\n"},
  };
  for (const BadRow& row : rows) {
    EXPECT_EQ(Said(row.bytes), row.said) << row.label;
    EXPECT_EQ(VerdictOn(row.bytes), row.verdict) << row.label;
  }
}

/// Two megabytes, which are not held in memory as a whole.
std::string Long(std::string_view part) {
  std::string text;
  while (text.size() < 2'000'000) text += part;
  return text;
}

TEST_F(JobCheckTest, LongFilesHaveTheSameProblems) {
  const std::string name = Long("x");
  const std::vector<BadRow> rows = {
      {"one line", Long("all of it is one line "), JobVerdict::Refused,
       "a.qjt:1: refused: marker: \"all of it is one line all of it is one l...\": is not \"qjt\", "
       "so this is no job file\n"},
      {"blanks", Long(" "), JobVerdict::Refused,
       "a.qjt:1: refused: marker: is not \"qjt\", so this is no job file\n"},
      {"letters", Long("日本"), JobVerdict::Refused,
       "a.qjt:1: refused: marker: \"日本日本日本日本日本日本日...\": is not \"qjt\", so this is no "
       "job file\n"},
      {"text in a number", EmptyJobWith(8, name), JobVerdict::ReadInPart,
       "a.qjt:8: read in part: RulaControlState(2): \"" + std::string(40, 'x') +
           "...\": is no number\n"},
      {"long name", EmptyJobWith(4, "\"" + name + "\",\"\",\"\",0,8"), JobVerdict::Good, ""},
      {"copies", EmptyJobWith(4, "\"\",\"\",\"\",0,\"" + name + "\""), JobVerdict::Good,
       "a.qjt:4: warning: JobDurationPerDay: \"" + std::string(40, 'x') +
           "...\": differs from the copy on line 3, \"8\"; the later copy counts\n"
           "a.qjt:4: warning: JobDurationPerDay: \"" +
           std::string(40, 'x') + "...\": is no number; it counts as 0\n"},
      {"behind the end", EmptyJobText() + "\r\nmore\r\n" + name, JobVerdict::Good,
       "a.qjt:66: warning: \"more\": stands behind the last task and is not read\n"},
  };
  for (const BadRow& row : rows) {
    EXPECT_EQ(Said(row.bytes), row.said) << row.label;
    EXPECT_EQ(VerdictOn(row.bytes), row.verdict) << row.label;
  }
}

TEST_F(JobCheckTest, FileThatCannotBeReadIsRefusedWithTheSystemsReason) {
  const JobCheck check = CheckJobFile(folder_.File("gone.qjt"));
  EXPECT_EQ(check.verdict, JobVerdict::Refused);
  EXPECT_TRUE(check.problems.empty());
  ASSERT_TRUE(check.failure);
  EXPECT_EQ(check.failure->message,
            "File error: " + folder_.File("gone.qjt") + ": No such file or directory");
}

TEST_F(JobCheckTest, GoodFilesHaveNothingToTell) {
  EXPECT_EQ(Said(EmptyJobText()), "");
  EXPECT_EQ(VerdictOn(EmptyJobText()), JobVerdict::Good);
  EXPECT_EQ(Said(JobWithTask({})), "");
  for (const std::string name : {"board-assembly.qjt", "packing-line.qjt", "parcel-sorting.qjt"}) {
    EXPECT_EQ(Said(BytesOf(SourcePath("docs/samples/" + name))), "") << name;
  }
}

struct WarningRow {
  std::string label;
  std::string bytes;
  std::string said;  ///< behind "a.qjt:"
};

void ExpectWarnings(const std::vector<WarningRow>& rows,
                    const std::function<std::string(std::string_view)>& said) {
  for (const WarningRow& row : rows) {
    EXPECT_EQ(said(row.bytes), row.said.empty() ? "" : "a.qjt:" + row.said + "\n") << row.label;
  }
}

TEST_F(JobCheckTest, CopiesThatDifferAreToldWithTheLineOfTheOther) {
  const std::vector<WarningRow> rows = {
      {"duration of the day", EmptyJobWith(4, "\"\",\"\",\"\",0,7.5"),
       "4: warning: JobDurationPerDay: \"7.5\": differs from the copy on line 3, \"8\"; the later "
       "copy counts"},
      {"quoted number", EmptyJobWith(4, "\"\",\"\",\"\",0,\"8\""), ""},
      {"other digits of a quoted number", EmptyJobWith(4, "\"\",\"\",\"\",0,\"8.0\""),
       "4: warning: JobDurationPerDay: \"8.0\": differs from the copy on line 3, \"8\"; the later "
       "copy counts"},
      {"other digits of a number", EmptyJobWith(4, "\"\",\"\",\"\",0,8.0"), ""},
      {"nothing for a number", EmptyJobWith(4, "\"\",\"\",\"\",0,"),
       "4: warning: JobDurationPerDay: differs from the copy on line 3, \"8\"; the later copy "
       "counts"},
      {"action frequency", JobWithTask({{2, "12,0"}}),
       "67: warning: OcraActionFrequency(1): \"0\": differs from the copy on line 66, \"12\"; the "
       "later copy counts"},
      {"long text", JobWithTask({{2, "\"" + std::string(41, 'x') + "\",0"}}),
       "66: warning: OcraActionFrequency(1): \"" + std::string(40, 'x') +
           "...\": is no number; it counts as 0\n"
           "a.qjt:67: warning: OcraActionFrequency(1): \"0\": differs from the copy on line 66, "
           "\"" +
           std::string(40, 'x') + "...\"; the later copy counts"},
      {"work time", JobWithTask({{3, "0,0.1,0,0,0,0,0"}}),
       "69: warning: CtdWorkTime(1): \"0\": differs from the copy on line 67, \"0.1\"; the later "
       "copy counts"},
      {"rest time", JobWithTask({{5, "0,.5,0,0,0,0"}}),
       "69: warning: CtdRestTime(1): \".5\": differs from the copy on line 67, \"0\"; the later "
       "copy counts"},
      {"spare", JobWithTask({{5, "0,0,1,0,0,0"}}),
       "69: warning: TaskSpare(1): \"1\": differs from the copy on line 67, \"0\"; the later copy "
       "counts"},
      {"hand span", JobWithTask({{5, "0,0,0,0,6,0"}}),
       "69: warning: CtdHandSpan(1): \"6\": differs from the copy on line 67, \"0\"; the later "
       "copy counts"},
      {"force", JobWithTask({{5, "0,0,0,0,0,9"}}),
       "69: warning: CtdForceMvc(1): \"9\": differs from the copy on line 67, \"0\"; the later "
       "copy counts"},
      {"grip", JobWithTask({{6, "2,0,0,0"}}),
       "70: warning: CtdGripType(1): \"2\": differs from the copy on line 68, \"0\"; the later "
       "copy counts"},
  };
  ExpectWarnings(rows, [this](std::string_view bytes) { return Said(bytes); });
}

TEST_F(JobCheckTest, ValuesThatNoControlStoresAreToldWithTheirRange) {
  const std::vector<WarningRow> rows = {
      {"upper arm", EmptyJobWith(6, "5"),
       "6: warning: RulaControlState(0): \"5\": is outside its range, 0 to 4; rula fails"},
      {"last upper arm", EmptyJobWith(6, "4"), ""},
      {"below", EmptyJobWith(7, "-1"),
       "7: warning: RulaControlState(1): \"-1\": is outside its range, 0 to 1; nothing is set"},
      {"force", EmptyJobWith(23, "4"),
       "23: warning: RulaControlState(17): \"4\": is outside its range, 0 to 3; nothing is set"},
      {"trunk", EmptyJobWith(38, "6"),
       "38: warning: RebaControlState(12): \"6\": is outside its range, 0 to 5; reba fails"},
      {"entry without a control", EmptyJobWith(31, "1"),
       "31: warning: RebaControlState(5): \"1\": is outside its range, 0; nothing reads it"},
      {"last activity", EmptyJobWith(48, "2"),
       "48: warning: RebaControlState(22): \"2\": is outside its range, 0 to 1; its box stays "
       "empty; it counts as it stands where a box beside it is set"},
      {"answer", EmptyJobWith(50, "4"),
       "50: warning: OcraComboChoice(0): \"4\": is outside its range, 0 to 3; ocra fails"},
      {"hand", EmptyJobWith(4, "\"\",\"\",\"\",2,8"),
       "4: warning: Hand: \"2\": is outside its range, 0 to 1; every tool fails"},
      {"intensity", EmptyJobWith(49, "0,0,0,0,15,0,0"),
       "49: warning: SiIntensityPick: \"15\": is outside its range, 0 to 14; si fails"},
      {"posture", EmptyJobWith(49, "0,0,0,0,0,\"20\",0"),
       "49: warning: SiPosturePick: \"20\": is outside its range, 0 to 19; si fails"},
      {"between two postures", EmptyJobWith(49, "0,0,0,0,0,1.5,0"),
       "49: warning: SiPosturePick: \"1.5\": is outside its range, 0 to 19; it counts as 2"},
      {"beyond a double", EmptyJobWith(49, "0,0,0,0,0,\"1E999\",0"),
       "49: warning: SiPosturePick: \"1E999\": is beyond any number that the program can hold; "
       "each "
       "tool that reads it fails"},
      {"speed", EmptyJobWith(49, "0,0,0,0,0,0,10"),
       "49: warning: SiSpeedPick: \"10\": is outside its range, 0 to 9; si fails"},
      {"last picks", EmptyJobWith(49, "0,0,0,0,14,19,9"), ""},
      {"grip", JobWithTask({{4, "1,0,0,0"}, {6, "0,0,0,0"}}),
       "68: warning: CtdGripType(1): \"1\": is outside its range, 0, 2, 3, 4; ctd fails on a task "
       "that exists\n"
       "a.qjt:70: warning: CtdGripType(1): \"0\": differs from the copy on line 68, \"1\"; the "
       "later copy counts"},
      {"wrist", JobWithTask({{4, "0,2,0,0"}, {6, "0,2,0,0"}}),
       "68: warning: CtdWristPosition(1): \"2\": is outside its range, 0, 1, 3; ctd fails on a "
       "task that exists\n"
       "a.qjt:70: warning: CtdWristPosition(1): \"2\": is outside its range, 0, 1, 3; ctd fails on "
       "a task that exists"},
      {"flexion and deviation", JobWithTask({{4, "0,0,1,5"}, {6, "0,0,1,5"}}),
       "68: warning: CtdFlexExtDeviation(1): \"1\": is outside its range, 0, 5, 6, 7, 8; ctd fails "
       "on a task that exists\n"
       "a.qjt:68: warning: CtdRadUlnDeviation(1): \"5\": is outside its range, 0 to 4; ctd fails "
       "on a task that exists\n"
       "a.qjt:70: warning: CtdFlexExtDeviation(1): \"1\": is outside its range, 0, 5, 6, 7, 8; ctd "
       "fails on a task that exists\n"
       "a.qjt:70: warning: CtdRadUlnDeviation(1): \"5\": is outside its range, 0 to 4; ctd fails "
       "on a task that exists"},
      {"good codes", JobWithTask({{4, "4,3,8,4"}, {6, "4,3,8,4"}, {7, "3,3,3,3,2,2,3,3"}}), ""},
      {"postures", JobWithTask({{7, "4,4,4,4,3,3,4,4"}}),
       "71: warning: CtdLtShoulderFlexion(1): \"4\": is outside its range, 0 to 3; ctd fails on a "
       "task that exists\n"
       "a.qjt:71: warning: CtdRtShoulderFlexion(1): \"4\": is outside its range, 0 to 3; ctd fails "
       "on a task that exists\n"
       "a.qjt:71: warning: CtdLtShoulderAbduction(1): \"4\": is outside its range, 0 to 3; ctd "
       "fails on a task that exists\n"
       "a.qjt:71: warning: CtdRtShoulderAbduction(1): \"4\": is outside its range, 0 to 3; ctd "
       "fails on a task that exists\n"
       "a.qjt:71: warning: CtdLtElbowFlexion(1): \"3\": is outside its range, 0 to 2; ctd fails on "
       "a task that exists\n"
       "a.qjt:71: warning: CtdRtElbowFlexion(1): \"3\": is outside its range, 0 to 2; ctd fails on "
       "a task that exists\n"
       "a.qjt:71: warning: CtdBackFlexion(1): \"4\": is outside its range, 0 to 3; ctd fails on a "
       "task that exists\n"
       "a.qjt:71: warning: CtdNeckFlexion(1): \"4\": is outside its range, 0 to 3; ctd fails on a "
       "task that exists"},
  };
  ExpectWarnings(rows, [this](std::string_view bytes) { return Said(bytes); });
}

/// An empty job with answers in some of its lists.
std::string JobWithAnswers(const std::vector<std::pair<int, int>>& answers) {
  std::string text = EmptyJobText();
  constexpr int kFirstLine = 50;
  std::size_t start = 0;
  for (int line = 1, list = 0; list < 14; ++line) {
    if (line >= kFirstLine) {
      for (const auto& [answered, answer] : answers) {
        if (answered == list) text[start] = static_cast<char>('0' + answer);
      }
      ++list;
    }
    start = text.find('\n', start) + 1;
  }
  return text;
}

TEST_F(JobCheckTest, AnswersInBothListsOfAPairAreTold) {
  const auto both = [](int line, int list, int answer) {
    return std::to_string(line) + ": warning: OcraComboChoice(" + std::to_string(list) + "): \"" +
           std::to_string(answer) + "\": is answered, and so is OcraComboChoice(" +
           std::to_string(list - 1) + ") on line " + std::to_string(line - 1) +
           ", the other list of the pair; both scores count";
  };
  const std::vector<WarningRow> rows = {
      {"supination and pronation", JobWithAnswers({{6, 0}, {7, 2}}), both(57, 7, 2)},
      {"elbow", JobWithAnswers({{8, 1}, {9, 1}}), both(59, 9, 1)},
      {"deviations", JobWithAnswers({{10, 2}, {11, 0}}), both(61, 11, 0)},
      {"wrist", JobWithAnswers({{12, 0}, {13, 0}}), both(63, 13, 0)},
      {"one of a pair", JobWithAnswers({{6, 0}, {8, 1}, {11, 2}, {13, 0}}), ""},
      {"grips, which are no pairs", JobWithAnswers({{0, 0}, {1, 1}, {2, 2}, {5, 0}}), ""},
      {"neighbours of two pairs", JobWithAnswers({{7, 0}, {8, 1}}), ""},
  };
  ExpectWarnings(rows, [this](std::string_view bytes) { return Said(bytes); });
}

TEST_F(JobCheckTest, TextBehindTheEndIsTold) {
  const std::vector<WarningRow> rows = {
      {"another task", EmptyJobText() + UntouchedTaskText(1),
       "65: warning: \"\"Task 1\",1\": stands behind the last task and is not read"},
      {"behind empty lines", EmptyJobText() + "\r\n \t\r\n0",
       "67: warning: \"0\": stands behind the last task and is not read"},
      {"empty lines", EmptyJobText() + "\r\n\r\n \r\n", ""},
      {"end mark of old systems", EmptyJobText() + "\x1A", ""},
  };
  ExpectWarnings(rows, [this](std::string_view bytes) { return Said(bytes); });
}

/// Processor time of a check, in seconds.
double SecondsToCheck(const std::string& path) {
  const std::clock_t start = std::clock();
  (void)CheckJobFile(path);
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST_F(JobCheckTest, WarningsOnALongFileTakeNoTimeForEach) {
  // Ten megabytes in front of all fields but the marker, then hundreds of warnings.
  const std::string blanks(10'000'000, ' ');
  const auto withBlanks = [&blanks](std::string job) {
    return job.insert(job.find(',') + 1, blanks);
  };
  const std::string code = "9,9,9,9";
  std::string warned = EmptyJobText("40");
  std::string good = warned;
  const std::string task = JobWithTask({{4, code}, {6, code}}).substr(EmptyJobText("1").size());
  for (int number = 1; number <= 40; ++number) {
    warned += task;
    good += UntouchedTaskText(number);
  }
  const std::string goodPath = folder_.File("good.qjt");
  WriteBytes(goodPath, withBlanks(good));
  const std::string path = Write(withBlanks(warned));
  EXPECT_GE(CheckJobFile(path).problems.size(), 300U);
  EXPECT_EQ(CheckJobFile(goodPath).problems.size(), 0U);
  // Counted from the begin for each, the lines take a hundred times as long as all the rest.
  EXPECT_LT(SecondsToCheck(path), 5 * SecondsToCheck(goodPath) + 0.2);
}

TEST_F(JobCheckTest, JsonHasEveryFileAndAllOfAProblem) {
  const auto json = [this](std::string_view bytes) {
    std::string text;
    AppendCheckJson(text, "a.qjt", CheckJobFile(Write(bytes)));
    return text;
  };
  EXPECT_EQ(
      json(EmptyJobText()),
      "{\"version\":1,\"file\":\"a.qjt\",\"verdict\":\"good\",\"problems\":[],\"error\":null}\n");
  EXPECT_EQ(
      json(EmptyJobWith(6, "9")),
      R"json({"version":1,"file":"a.qjt","verdict":"good","problems":[{"warning":true,"line":6,)json"
      R"json("field":"RulaControlState(0)","found":"9",)json"
      R"json("message":"is outside its range, 0 to 4; rula fails"}],"error":null})json"
      "\n");
  EXPECT_EQ(
      json(EmptyJobWith(8, "\"x\"\t")),
      R"json({"version":1,"file":"a.qjt","verdict":"read in part","problems":[{"warning":false,)json"
      R"json("line":8,"field":"RulaControlState(2)","found":"x",)json"
      R"json("message":"is no number"}],"error":null})json"
      "\n");
  std::string gone;
  JobCheck unreadable;
  unreadable.verdict = JobVerdict::Refused;
  unreadable.failure = ReportFailure{"FileError", "File error: a.qjt: gone"};
  AppendCheckJson(gone, "a.qjt", unreadable);
  EXPECT_EQ(gone, R"json({"version":1,"file":"a.qjt","verdict":"refused","problems":[],)json"
                  R"json("error":{"kind":"FileError","message":"File error: a.qjt: gone",)json"
                  R"json("line":null,"field":null,"value":null,"reason":null}})json"
                  "\n");
}

TEST_F(JobCheckTest, WarningsAreNoFailure) {
  CheckCommand command(ReportFormat::Text);
  std::string out;
  EXPECT_FALSE(command.Do(out, Write(EmptyJobWith(6, "9"))).failed);
  EXPECT_NE(out, "");
  EXPECT_TRUE(command.Do(out, Write(EmptyJobWith(8, "x"))).failed);
  EXPECT_TRUE(command.Do(out, Write("")).failed);
  const JobOutcome gone = command.Do(out, folder_.File("gone"));
  EXPECT_TRUE(gone.failed);
  EXPECT_EQ(gone.complaints, std::vector<std::string>{"File error: " + folder_.File("gone") +
                                                      ": No such file or directory"});
}

TEST_F(JobCheckTest, NothingOfAnotherFileComesThrough) {
  Said("\"qjt\",1,0,0,0\r\n0\r\n8,0\r\n");
  EXPECT_EQ(Said(EmptyJobText()), "");
  EXPECT_EQ(VerdictOn(EmptyJobText()), JobVerdict::Good);
}

}  // namespace
}  // namespace halvane
