#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <thread>

#include "core/job_state.h"

namespace halvane {
namespace {

const std::string kLongName(1000, 'x');

TEST(JobOfAThread, IsItsOwn) {
  Module1.JobFileName = kLongName;
  std::thread([] {
    EXPECT_EQ(Module1, JobState{});
    Module1.JobFileName = "other";
  }).join();
  EXPECT_EQ(Module1.JobFileName, kLongName);
  Module1 = JobState{};
}

void EndWithAJob() {
  Module1.JobFileName = kLongName;
  std::atexit([] { std::_Exit(Module1.JobFileName == kLongName ? 7 : 8); });
  std::exit(0);
}

TEST(JobOfTheFirstThread, IsThereWhenTheProgramEnds) {
  EXPECT_EXIT(EndWithAJob(), testing::ExitedWithCode(7), "");
}

}  // namespace
}  // namespace halvane
