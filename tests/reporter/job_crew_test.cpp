#include "reporter/job_crew.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>

#include "core/job_state.h"

namespace halvane {
namespace {

/// What the workers of a test share.
struct Shared {
  std::atomic<int> done = 0;
  std::atomic<int> workers = 0;
  std::atomic<bool> isHeld = false;  ///< nothing is finished while it is set
};

/// Gives each job its own name, repeated where the name says so.
class NamingWorker : public JobWorker {
 public:
  explicit NamingWorker(Shared& shared) : shared_(shared) { ++shared_.workers; }

  JobResult Do(const JobSource& job) override {
    shared_.isHeld.wait(true);
    if (job.name == "bad") throw std::runtime_error("bad job");
    // Each thread has a job of its own.
    Module1.JobFileName = job.name;
    JobResult result;
    result.text = job.name == "large" ? std::string(std::size_t{1} << 19, 'x') : job.name;
    EXPECT_EQ(Module1.JobFileName, job.name);
    ++shared_.done;
    return result;
  }

 private:
  Shared& shared_;
};

class NamingCommand : public JobCommand {
 public:
  explicit NamingCommand(Shared& shared) : shared_(shared) {}
  [[nodiscard]] std::unique_ptr<JobWorker> MakeWorker() const override {
    return std::make_unique<NamingWorker>(shared_);
  }

 private:
  Shared& shared_;
};

TEST(JobCrew, GivesResultsInTheOrderOfTheJobs) {
  Shared shared;
  const NamingCommand command(shared);
  JobCrew crew(command, 4);
  int taken = 0;
  for (int given = 0; given < 5000; ++given) {
    while (crew.isFull()) EXPECT_EQ(crew.Take(false).text, std::to_string(taken++));
    crew.Give(std::to_string(given));
  }
  EXPECT_EQ(crew.size(), 5000U - static_cast<unsigned>(taken));
  while (!crew.isEmpty()) EXPECT_EQ(crew.Take(true).text, std::to_string(taken++));
  EXPECT_EQ(taken, 5000);
  EXPECT_LE(shared.workers, 4);
}

TEST(JobCrew, StartsNoMoreThreadsThanThereAreJobs) {
  Shared shared;
  shared.isHeld = true;
  const NamingCommand command(shared);
  JobCrew crew(command, 100);
  crew.Give(std::string("a"));
  crew.Give(std::string("b"));
  EXPECT_LE(shared.workers, 2);
  shared.isHeld = false;
  shared.isHeld.notify_all();
  EXPECT_EQ(crew.Take(false).text, "a");
  EXPECT_EQ(crew.Take(false).text, "b");
}

TEST(JobCrew, HoldsFewLargeResults) {
  Shared shared;
  const NamingCommand command(shared);
  JobCrew crew(command, 2);
  int given = 0;
  for (; !crew.isFull(); ++given) crew.Give(std::string("large"));
  EXPECT_GT(given, 32);
  for (int taken = 1; taken <= given; ++taken) {
    EXPECT_EQ(crew.Take(false).text.size(), std::size_t{1} << 19);
    // One result is as much as may wait, and two jobs were at work when none waited.
    EXPECT_LE(shared.done, taken + 2);
  }
}

TEST(JobCrew, PassesOnWhatAWorkerThrows) {
  Shared shared;
  const NamingCommand command(shared);
  JobCrew crew(command, 2);
  crew.Give(std::string("a"));
  crew.Give(std::string("bad"));
  crew.Give(std::string("c"));
  EXPECT_EQ(crew.Take(false).text, "a");
  EXPECT_THROW((void)crew.Take(false), std::runtime_error);
  EXPECT_EQ(crew.Take(false).text, "c");
}

TEST(JobCrew, DropsWhatNobodyIsAt) {
  Shared shared;
  shared.isHeld = true;
  const NamingCommand command(shared);
  JobCrew crew(command, 2);
  while (!crew.isFull()) crew.Give(std::string("a"));
  crew.DropWaiting();
  EXPECT_LE(crew.size(), 2U);
  shared.isHeld = false;
  shared.isHeld.notify_all();
  const std::size_t begun = crew.size();
  for (std::size_t i = 0; i < begun; ++i) EXPECT_EQ(crew.Take(false).text, "a");
  EXPECT_EQ(shared.done, static_cast<int>(begun));
}

}  // namespace
}  // namespace halvane
