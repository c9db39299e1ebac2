#include <gtest/gtest.h>
#include <sys/resource.h>

#include <chrono>
#include <fstream>
#include <string>

#include "core/job_file.h"
#include "tests/core/test_support.h"

namespace halvane {
namespace {

#ifdef HALVANE_COUNTED
// Where each line run is counted, a byte takes ten times as long.
constexpr std::size_t kFieldSize = 10'000'000;
#else
constexpr std::size_t kFieldSize = 100'000'000;
#endif
/// A reader that looks at a byte a few times is done within a second or two; one that looks at each
/// byte again for each byte is not done within hours.
constexpr std::chrono::seconds kPatience{60};
#ifdef __SANITIZE_ADDRESS__
// The address sanitizer keeps freed memory back for a while.
constexpr long kMultiple = 12;
#else
// The file, its text and the text in the job, and the rest of the program.
constexpr long kMultiple = 6;
#endif
constexpr long kMostKilobytes = kMultiple * (kFieldSize / 1024);

long PeakKilobytes() {
  rusage usage{};
  EXPECT_EQ(getrusage(RUSAGE_SELF, &usage), 0);
  return usage.ru_maxrss;
}

/// Jobs of one huge field. The peak of memory counts from the start of the process, so this
/// program has nothing else in it.
class LargeFile : public testing::Test {
 protected:
  void SetUp() override {
    Module1 = JobState{};
    Module1.JobFileName = folder_.File("job.qjt");
  }

  /// Writes an empty job with a fourth line of `open`, the huge field and `close`.
  void WriteJob(std::string_view open, char filler, std::string_view close) {
    const std::string job = EmptyJobWith(4, "@");
    const std::size_t mark = job.find('@');
    const std::string block(1'000'000, filler);
    std::ofstream file(Module1.JobFileName, std::ios::binary);
    file << job.substr(0, mark) << open;
    for (std::size_t written = 0; written < kFieldSize; written += block.size()) file << block;
    file << close << job.substr(mark + 1);
    file.close();
    ASSERT_TRUE(file.good());
  }

  std::string Open() {
    const auto start = std::chrono::steady_clock::now();
    std::string outcome = FailureOf(OpenJobFile);
    EXPECT_LT(std::chrono::steady_clock::now() - start, kPatience);
    return outcome;
  }

  const TemporaryFolder folder_;
};

TEST_F(LargeFile, TextIsReadAndWrittenWithinASmallMultipleOfItsSize) {
  WriteJob("\"", 'a', "\",\"\",\"\",1,8");
  EXPECT_EQ(Open(), "none");
  EXPECT_EQ(Module1.JobAnalyst.AsText().size(), kFieldSize);
  EXPECT_EQ(Module1.Hand, 1);
  WriteJobFile();
  EXPECT_LT(PeakKilobytes(), kMostKilobytes);
}

TEST_F(LargeFile, LettersOfTheCodePageGrowToTwoBytesAndNoMore) {
  WriteJob("\"", '\xE9', "\",\"\",\"\",1,8");
  EXPECT_EQ(Open(), "none");
  EXPECT_EQ(Module1.JobAnalyst.AsText().size(), 2 * kFieldSize);
  EXPECT_LT(PeakKilobytes(), kMostKilobytes);
}

TEST_F(LargeFile, NumberOfEndlessDigitsOverflows) {
  WriteJob("\"\",\"\",\"\",0,", '9', "");
  EXPECT_EQ(Open(), "Overflow");
  EXPECT_LT(PeakKilobytes(), kMostKilobytes);
}

TEST_F(LargeFile, EndlessTextInANumberIsAMismatch) {
  WriteJob("\"\",\"\",\"\",", 'x', ",8");
  EXPECT_EQ(Open(), "TypeMismatch");
  EXPECT_LT(PeakKilobytes(), kMostKilobytes);
}

TEST_F(LargeFile, BlanksInFrontOfAFieldArePassed) {
  WriteJob("\"\",\"\",\"\",", ' ', "1,8");
  EXPECT_EQ(Open(), "none");
  EXPECT_EQ(Module1.Hand, 1);
  EXPECT_LT(PeakKilobytes(), kMostKilobytes);
}

TEST_F(LargeFile, OtherFileIsRefused) {
  WriteBytes(Module1.JobFileName, std::string(kFieldSize, ','));
  EXPECT_EQ(OpenJobFile(), OpenOutcome::NotAJobFile);
}

}  // namespace
}  // namespace halvane
