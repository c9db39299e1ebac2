#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "reporter/job_command.h"

namespace halvane {

/// Does jobs in several threads and gives what they came to in the order in which they were given.
/// It holds a few hundred results for each thread, and while these are large, no more than a
/// quarter of a megabyte for each thread beside those that the threads are at. All functions are
/// called by one thread.
class JobCrew {
 public:
  /// `most` threads at most, which are started when there is work for them; each has a worker of
  /// `command`, which has to outlive the crew.
  JobCrew(const JobCommand& command, int most);
  /// Waits for the jobs that are under way; those that wait stay undone.
  ~JobCrew();
  JobCrew(const JobCrew&) = delete;
  JobCrew& operator=(const JobCrew&) = delete;

  /// Whether all that was given has been taken.
  [[nodiscard]] bool isEmpty() const { return size() == 0; }
  /// Whether a job has to be taken before another one is given.
  [[nodiscard]] bool isFull() const;
  [[nodiscard]] std::size_t size() const { return given_.size() + jobs_.size() + taken_.size(); }
  /// Whether a job can be taken that is known to be done.
  [[nodiscard]] bool hasTaken() const { return !taken_.empty(); }

  void Give(JobSource source);
  /// Waits until the oldest job is done, and takes it. Throws what its worker threw. Unless it is
  /// `urgent`, waits a moment longer for more to be done, which then are taken without waiting.
  JobResult Take(bool urgent);
  /// Drops the jobs that no thread is at.
  void DropWaiting();

 private:
  struct Job {
    JobSource source;
    JobResult result = {};
    std::exception_ptr thrown = nullptr;
    bool isDone = false;
  };

  void HandOver();
  void TakeDone(bool urgent);
  void StartThread();
  void Work(JobWorker& worker);
  JobResult TakeDoneHere();
  void DoJob(JobWorker& worker, Job& job) const;
  [[nodiscard]] bool MayBegin() const;
  [[nodiscard]] bool isFrontDone() const { return jobs_.front().isDone; }
  [[nodiscard]] bool isMuchDone() const;
  [[nodiscard]] bool isHeldUp() const;

  const JobCommand& command_;
  std::size_t most_;  ///< threads; 0 where the system gives none
  std::vector<std::unique_ptr<JobWorker>> workers_;
  std::vector<std::thread> threads_;

  // What the thread that gives and takes has for itself, so that it holds up the others seldom.
  std::vector<JobSource> given_;  ///< not yet in `jobs_`
  std::deque<Job> taken_;         ///< no longer in `jobs_`

  // What the threads share; only the one that gives and takes changes how many jobs there are.
  mutable std::mutex mutex_;
  std::condition_variable workCame_;
  std::condition_variable workDone_;
  std::deque<Job> jobs_;       ///< the oldest comes first
  std::size_t begun_ = 0;      ///< how many of `jobs_`, from the first on
  std::size_t done_ = 0;       ///< how many of these
  std::size_t bytesDone_ = 0;  ///< of their texts
  std::size_t idle_ = 0;       ///< threads that wait
  bool waitsForMuch_ = false;  ///< the one that takes does
  bool isOver_ = false;
};

}  // namespace halvane
