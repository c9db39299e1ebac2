#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "core/input_file.h"
#include "core/job_file.h"
#include "core/job_text_reader.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

#ifdef HALVANE_COUNTED
// Where each line run is counted, a byte takes ten times as long.
constexpr std::size_t kFieldSize = 16'000'000;
#else
constexpr std::size_t kFieldSize = 128'000'000;
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(HALVANE_COUNTED)
// The address sanitizer keeps freed memory back for a while.
constexpr bool kMeasures = false;
#else
constexpr bool kMeasures = true;
#endif
constexpr off_t kGibibyte = off_t{1} << 30;

/// What opening a file took and came to.
struct Opening {
  std::string outcome;      ///< "Opened", "NotAJobFile" or the kind of the failure
  std::string found;        ///< what the test asked for, from the job or the failure
  long peakKilobytes = 0;   ///< above what the process had before
  long long bytesRead = 0;  ///< from files, as the system counts them
};

long PeakKilobytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

/// What this process has read so far, from the page cache or the disk.
long long BytesRead() {
  std::ifstream counts("/proc/self/io");
  std::string name;
  long long count = 0;
  while (counts >> name >> count) {
    if (name == "rchar:") return count;
  }
  std::abort();
}

std::string Outcome(std::string& found) {
  try {
    return OpenJobFile() == OpenOutcome::Opened ? "Opened" : "NotAJobFile";
  } catch (const JobReadFailure& failure) {
    found = std::to_string(failure.line()) + " " + failure.field() + " " +
            std::to_string(failure.found().size());
    return std::string(KindName(failure.kind()));
  } catch (const RuntimeFailure& failure) {
    return std::string(KindName(failure.kind()));
  }
}

/// Each file is opened in a process of its own, so that the peak of memory is its own too.
class LargeFile : public testing::Test {
 protected:
  /// `look` gives what the job is asked for.
  template <typename Look>
  Opening Open(const Look& look) {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
      Module1 = JobState{};
      Module1.JobFileName = path_;
      const long before = PeakKilobytes();
      const long long start = BytesRead();
      std::string found;
      std::string told = Outcome(found);
      const long long bytesRead = BytesRead() - start;
      if (told == "Opened") found = look();
      told += "\n" + found + "\n" + std::to_string(PeakKilobytes() - before) + "\n" +
              std::to_string(bytesRead) + "\n";
      const bool written =
          write(ends[1], told.data(), told.size()) == static_cast<ssize_t>(told.size());
      _exit(written ? 0 : 1);
    }
    close(ends[1]);
    std::string told;
    char c = 0;
    while (read(ends[0], &c, 1) == 1) told += c;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < told.size();) {
      const std::size_t end = told.find('\n', start);
      lines.push_back(told.substr(start, end - start));
      start = end + 1;
    }
    if (lines.size() != 4) return {};
    return {lines[0], lines[1], std::stol(lines[2]), std::stoll(lines[3])};
  }
  Opening Open() {
    return Open([] { return Module1.JobFileOpen ? "open" : "closed"; });
  }

  /// Writes `begin`, `size` bytes of `filler` over and over, and `end`.
  void Write(std::string_view begin, std::string_view filler, std::size_t size,
             std::string_view end) {
    std::string block;
    while (block.size() < 1'000'000) block += filler;
    std::ofstream file(path_, std::ios::binary);
    file << begin;
    for (std::size_t written = 0; written < size; written += block.size()) file << block;
    file << end;
    file.close();
    ASSERT_TRUE(file.good());
  }
  /// An empty job with a fourth line of `open`, the huge field and `close`.
  void WriteJob(std::string_view open, char filler, std::string_view close) {
    const std::string job = EmptyJobWith(4, "@");
    const std::size_t mark = job.find('@');
    Write(job.substr(0, mark) + std::string(open), std::string(1, filler), kFieldSize,
          std::string(close) + job.substr(mark + 1));
  }
  /// Makes the file that long with a hole, which takes no room on the disk.
  void Stretch(off_t size) { ASSERT_EQ(truncate(path_.c_str(), size), 0); }

  static void ExpectPeakBelow(const Opening& opening, double bytes) {
    if (kMeasures) {
      EXPECT_LT(static_cast<double>(opening.peakKilobytes) * 1024, bytes);
    }
  }

  const TemporaryFolder folder_;
  const std::string path_ = folder_.File("job.qjt");
};

// What a job may take: one and a half times what is read of its file.
constexpr double kJobBytes = 1.5 * kFieldSize;

TEST_F(LargeFile, QuotedTextTakesTheRoomOfItself) {
  WriteJob("\"", 'a', "\",\"\",\"\",1,8");
  const Opening opening = Open([] {
    return std::to_string(Module1.JobAnalyst.AsText().size()) + " " + std::to_string(Module1.Hand);
  });
  EXPECT_EQ(opening.outcome, "Opened");
  EXPECT_EQ(opening.found, std::to_string(kFieldSize) + " 1");
}

TEST_F(LargeFile, JobIsWrittenWithinASmallMultipleOfItsSize) {
  WriteJob("\"", 'a', "\",\"\",\"\",1,8");
  const Opening opening = Open([] {
    WriteJobFile();
    return "";
  });
  EXPECT_EQ(opening.outcome, "Opened");
  ExpectPeakBelow(opening, 6.0 * kFieldSize);
}

TEST_F(LargeFile, TextOfEveryPlaceTakesTheRoomOfItself) {
  const std::vector<std::pair<std::string, std::string>> rows{
      {"\"", "\",\"\",\"\",1,8"}, {"", ",\"\",\"\",1,8"}, {"\"\",\"\",\"", "\",1,8"}};
  for (const auto& [open, close] : rows) {
    WriteJob(open, 'a', close);
    const Opening opening = Open();
    EXPECT_EQ(opening.outcome, "Opened") << open;
    EXPECT_EQ(opening.found, "closed") << open;
    ExpectPeakBelow(opening, kJobBytes);
  }
}

TEST_F(LargeFile, LettersOfTheCodePageGrowToTwoBytesAndNoMore) {
  WriteJob("\"", '\xE9', "\",\"\",\"\",1,8");
  const Opening opening = Open();
  EXPECT_EQ(opening.outcome, "Opened");
  ExpectPeakBelow(opening, 2.2 * kFieldSize);
}

TEST_F(LargeFile, FieldThatFailsIsKeptOnceInItsFailure) {
  WriteJob("\"\",\"\",\"\",0,", '9', "");
  Opening opening = Open();
  EXPECT_EQ(opening.outcome, "Overflow");
  EXPECT_EQ(opening.found, "4 JobDurationPerDay " + std::to_string(kFieldSize));
  ExpectPeakBelow(opening, kJobBytes);
  WriteJob("\"\",\"\",\"\",", 'x', ",8");
  opening = Open();
  EXPECT_EQ(opening.outcome, "TypeMismatch");
  EXPECT_EQ(opening.found, "4 Hand " + std::to_string(kFieldSize));
  ExpectPeakBelow(opening, kJobBytes);
}

TEST_F(LargeFile, BlanksInFrontOfAFieldTakeNoRoom) {
  WriteJob("\"\",\"\",\"\",", ' ', "1,8");
  const Opening opening = Open([] { return std::to_string(Module1.Hand); });
  EXPECT_EQ(opening.outcome, "Opened");
  EXPECT_EQ(opening.found, "1");
  ExpectPeakBelow(opening, 10e6);
}

TEST_F(LargeFile, QuoteThatNeverClosesTakesTheRestOfTheFile) {
  WriteJob("\"", 'a', "");
  const Opening opening = Open();
  EXPECT_EQ(opening.outcome, "InputPastEnd");
  ExpectPeakBelow(opening, kJobBytes);
}

// What is read and what is kept of a file whose first bytes tell all there is to know.
constexpr long long kFirstBytes = 2'000'000;
constexpr double kFewBytes = 10e6;

TEST_F(LargeFile, ForeignFileIsRefusedByItsFirstBytes) {
  const std::vector<std::string> rows{
      "all of it is one line ", " ",     "\"", "\"QJT\",1,0,0,0\r\n", "1", "日本", ",", "\r\n",
      std::string(1, '\0'),     "1E999,"};
  for (const std::string& row : rows) {
    Write("", row, 2'000'000, "");
    Stretch(kGibibyte);
    const Opening opening = Open();
    // Five whole fields are read as those of a short file.
    EXPECT_EQ(opening.outcome, row == "1E999," ? "Overflow" : "NotAJobFile") << row;
    EXPECT_LT(opening.bytesRead, kFirstBytes) << row;
    ExpectPeakBelow(opening, kFewBytes);
  }
}

TEST_F(LargeFile, RefusedFileIsClosedAndTheJobAsItWas) {
  WriteBytes(path_, "");
  Stretch(kGibibyte);
  Module1 = JobState{};
  Module1.JobFileName = path_;
  Module1.JobAnalyst = "analyst";
  Module1.JobDirty = kTrue;
  const JobState before = Module1;
  EXPECT_EQ(OpenJobFile(), OpenOutcome::NotAJobFile);
  EXPECT_EQ(Module1, before);
}

TEST_F(LargeFile, WhatFollowsTheLastTaskIsNotRead) {
  for (const std::string_view behind : {"", "more, \"text", "\xFF\xFF"}) {
    WriteBytes(path_, EmptyJobWith(4, "\"Łódź\",\"\",\"\",0,8") + std::string(behind));
    Stretch(2 * kGibibyte);
    const Opening opening = Open([] { return Module1.JobAnalyst.AsText(); });
    EXPECT_EQ(opening.outcome, "Opened") << behind;
    EXPECT_EQ(opening.found, "Łódź") << behind;
    EXPECT_LT(opening.bytesRead, kFirstBytes) << behind;
    ExpectPeakBelow(opening, kFewBytes);
  }
}

}  // namespace
}  // namespace halvane
