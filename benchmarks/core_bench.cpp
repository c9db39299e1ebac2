// Reading, writing and computing, inside one process.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "core/job_file.h"
#include "core/job_state.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;

/// A job of 40 tasks in a file of its own, removed at the end.
class JobOnDisk {
 public:
  explicit JobOnDisk(const std::string& name)
      : path_(std::filesystem::temp_directory_path() / name) {
    Module1 = JobState{};
    Module1.JobAnalyst = "Line 4 review";
    for (int task = 1; task <= kTasks; ++task) {
      Module1.TaskCount = static_cast<Integer>(task);
      NewTaskRecord();
      Module1.OcraTaskDuration.at(task) = 7.25 * task;
      Module1.CtdLoadHeld.at(task, 3) = 0.1 * task;
    }
    Module1.JobFileName = path_.string();
    WriteJobFile();
  }
  ~JobOnDisk() { std::filesystem::remove(path_); }
  JobOnDisk(const JobOnDisk&) = delete;
  JobOnDisk& operator=(const JobOnDisk&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

void ReadJob(benchmark::State& state) {
  const JobOnDisk job("halvane-bench-read.qjt");
  for (auto round : state) {
    if (OpenJobFile() != OpenOutcome::Opened) state.SkipWithError("the job does not open");
  }
}
BENCHMARK(ReadJob);

void ReadStream(benchmark::State& state) {
  const JobOnDisk job("halvane-bench-stream.qjt");
  for (auto round : state) {
    std::ifstream file(job.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    benchmark::DoNotOptimize(bytes.data());
  }
}
BENCHMARK(ReadStream);

/// The text alone, without what keeps the old file safe on the disk.
void WriteJobText(benchmark::State& state) {
  const JobOnDisk job("halvane-bench-text.qjt");
  for (auto round : state) {
    std::ofstream file(job.path(), std::ios::binary);
    const std::string bytes = JobFileBytes(Module1);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
}
BENCHMARK(WriteJobText);

void SaveJob(benchmark::State& state) {
  const JobOnDisk job("halvane-bench-save.qjt");
  for (auto round : state) WriteJobFile();
}
BENCHMARK(SaveJob);

void WriteStream(benchmark::State& state) {
  const JobOnDisk job("halvane-bench-copy.qjt");
  const std::string bytes = JobFileBytes(Module1);
  for (auto round : state) {
    std::ofstream file(job.path(), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
}
BENCHMARK(WriteStream);

void StrainIndexWithReport(benchmark::State& state) {
  Module1 = JobState{};
  RichText report;
  for (auto round : state) {
    RowOf(Tool::StrainIndex).writeReport(report);
    benchmark::DoNotOptimize(report);
  }
}
BENCHMARK(StrainIndexWithReport);

}  // namespace
}  // namespace halvane
