#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/fuzz/job_warnings_check.h"
#include "tests/fuzz/options_check.h"
#include "tests/fuzz/writers_check.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

// What the fuzz targets start from, here with the compiler that users' programs are built with.

template <typename Check>
void CheckEachFile(const char* folder, int least, const Check& check) {
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    ++files;
    SCOPED_TRACE(entry.path());
    check(BytesOf(entry.path().string()));
  }
  EXPECT_GE(files, least) << folder;
}

void CheckJob(const std::string& bytes) {
  EXPECT_EQ(ProblemOfCheck(bytes), "");
  EXPECT_EQ(ProblemOfWriters(bytes), "");
}

TEST(Corpora, CheckAndWritersKeepTheirPromisesOnEachJob) {
  CheckEachFile(HALVANE_SOURCE_DIR "/tests/fuzz/report_corpus", 15, CheckJob);
  CheckEachFile(HALVANE_SOURCE_DIR "/tests/fuzz/corpus", 30, CheckJob);
  CheckEachFile(HALVANE_SOURCE_DIR "/docs/samples", 3, CheckJob);
}

TEST(Corpora, EachCommandLineIsTakenOrRefusedInWords) {
  CheckEachFile(HALVANE_SOURCE_DIR "/tests/fuzz/options_corpus", 15,
                [](const std::string& bytes) { EXPECT_EQ(ProblemOfOptions(bytes), ""); });
}

}  // namespace
}  // namespace halvane
