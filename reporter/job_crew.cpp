#include "reporter/job_crew.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

#include "reporter/interruption.h"

namespace halvane {
namespace {

/// Given and not taken, for each thread: enough that none of them waits for the one that takes,
/// which is woken seldom.
constexpr std::size_t kJobsOfAThread = 256;
/// Some three dozen usual reports; with more, the memory would go by how far a thread is ahead.
constexpr std::size_t kBytesOfAThread = std::size_t{1} << 18;
/// Given and not yet handed over to the threads that work: they share a lock, and each time that
/// one has to wait for it costs as much as a job.
constexpr std::size_t kHandedOverAtOnce = 16;
/// The most bytes that are taken from them at once, a single result aside.
constexpr std::size_t kBytesTakenAtOnce = std::size_t{1} << 16;
/// How long what is done may lie until it is taken.
constexpr std::chrono::milliseconds kPatience{100};

}  // namespace

JobCrew::JobCrew(const JobCommand& command, int most)
    : command_(command), most_(static_cast<std::size_t>(most)) {}

JobCrew::~JobCrew() {
  {
    const std::lock_guard lock(mutex_);
    isOver_ = true;
  }
  workCame_.notify_all();
  for (std::thread& thread : threads_) thread.join();
}

bool JobCrew::isFull() const { return size() >= kJobsOfAThread * std::max<std::size_t>(most_, 1); }

void JobCrew::Give(JobSource source) {
  given_.push_back(std::move(source));
  // Each of the first jobs may need a thread that is still to be started.
  if (threads_.size() < most_ || given_.size() == kHandedOverAtOnce) HandOver();
}

void JobCrew::HandOver() {
  if (given_.empty()) return;
  bool needsThread = false;
  {
    const std::lock_guard lock(mutex_);
    for (JobSource& source : given_) jobs_.push_back({std::move(source)});
    needsThread = jobs_.size() - begun_ > idle_ && threads_.size() < most_;
  }
  given_.clear();
  if (needsThread) {
    StartThread();
  } else {
    workCame_.notify_all();
  }
}

void JobCrew::StartThread() {
  workers_.push_back(command_.MakeWorker());
  try {
    threads_.push_back(
        StartUninterrupted([this, worker = workers_.back().get()] { Work(*worker); }));
  } catch (const std::system_error&) {
    // The system gives no more of them: those that are there do the work, or the one that takes.
    most_ = threads_.size();
  }
}

/// Whether more is done than may wait to be taken.
bool JobCrew::isHeldUp() const { return bytesDone_ >= kBytesOfAThread * most_; }

/// The oldest job may always begin, so that the others get their turn at some time.
bool JobCrew::MayBegin() const {
  if (begun_ == jobs_.size()) return false;
  return begun_ == 0 || !isHeldUp();
}

void JobCrew::Work(JobWorker& worker) {
  std::unique_lock lock(mutex_);
  while (true) {
    ++idle_;
    workCame_.wait(lock, [this] { return isOver_ || MayBegin(); });
    --idle_;
    if (isOver_) return;
    // It stays where it is while others come behind it and go in front of it.
    Job& job = jobs_[begun_++];
    lock.unlock();
    DoJob(worker, job);
    lock.lock();
    job.isDone = true;
    ++done_;
    bytesDone_ += job.result.text.size();
    if (waitsForMuch_ ? isMuchDone() : isFrontDone()) workDone_.notify_one();
  }
}

void JobCrew::DoJob(JobWorker& worker, Job& job) const {
  try {
    job.result = worker.DoFileOrFolder(job.source);
  } catch (...) {
    job.thrown = std::current_exception();
  }
}

bool JobCrew::isMuchDone() const {
  return isFrontDone() && (done_ >= jobs_.size() / 2 || isHeldUp());
}

JobResult JobCrew::Take(bool urgent) {
  if (taken_.empty()) {
    HandOver();
    if (threads_.empty()) return TakeDoneHere();
    TakeDone(urgent);
  }
  Job job = std::move(taken_.front());
  taken_.pop_front();
  if (job.thrown) std::rethrow_exception(job.thrown);
  return std::move(job.result);
}

/// Waits until the oldest job is done, and moves it and what is done behind it into `taken_`.
void JobCrew::TakeDone(bool urgent) {
  std::unique_lock lock(mutex_);
  if (!urgent && !isFrontDone()) {
    waitsForMuch_ = true;
    workDone_.wait_for(lock, kPatience, [this] { return isMuchDone(); });
    waitsForMuch_ = false;
  }
  workDone_.wait(lock, [this] { return isFrontDone(); });
  const bool wasHeldUp = isHeldUp();
  std::size_t bytes = 0;
  while (!jobs_.empty() && isFrontDone() && bytes < kBytesTakenAtOnce) {
    bytes += jobs_.front().result.text.size();
    taken_.push_back(std::move(jobs_.front()));
    jobs_.pop_front();
    --begun_;
    --done_;
  }
  bytesDone_ -= bytes;
  lock.unlock();
  if (wasHeldUp) workCame_.notify_all();
}

JobResult JobCrew::TakeDoneHere() {
  const JobSource source = std::move(jobs_.front().source);
  jobs_.pop_front();
  return workers_.front()->DoFileOrFolder(source);
}

void JobCrew::DropWaiting() {
  given_.clear();
  const std::lock_guard lock(mutex_);
  jobs_.erase(jobs_.begin() + static_cast<std::ptrdiff_t>(begun_), jobs_.end());
}

}  // namespace halvane
