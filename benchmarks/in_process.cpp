#include <benchmark/benchmark.h>

#include <fstream>
#include <string>

#include "benchmarks/benchmark_jobs.h"
#include "core/job_file.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;

std::string PathOf(const char* name) { return BenchmarkFolder() + "/" + name; }

/// A job file on the disk, and the job in memory.
std::string SavedJob() {
  FillJob(kTasks, 1);
  Module1.JobFileName = PathOf("job.qjt");
  WriteJobFile();
  return Module1.JobFileName;
}

/// What any program does that takes the same bytes in or out through a stream.
void CopyThroughStream(benchmark::State& state) {
  const std::string from = SavedJob();
  const std::string to = PathOf("copy.qjt");
  for (auto _ : state) {
    std::ifstream in(from, std::ios::binary);
    std::ofstream out(to, std::ios::binary | std::ios::trunc);
    out << in.rdbuf();
    out.flush();
    if (!out) state.SkipWithError("could not copy");
  }
}
BENCHMARK(CopyThroughStream);

void ReadJob(benchmark::State& state) {
  Module1.JobFileName = SavedJob();
  for (auto _ : state) {
    if (OpenJobFile() != OpenOutcome::Opened) state.SkipWithError("is no job file");
  }
}
BENCHMARK(ReadJob);

/// The job as the bytes of its file, in memory.
void WriteJobText(benchmark::State& state) {
  SavedJob();
  for (auto _ : state) benchmark::DoNotOptimize(JobFileBytes(Module1));
}
BENCHMARK(WriteJobText);

/// The whole save: the old file is kept until the new one has reached the disk.
void SaveJob(benchmark::State& state) {
  SavedJob();
  for (auto _ : state) WriteJobFile();
}
BENCHMARK(SaveJob);

/// The form's load, the computation and the report, as the reporter does them.
void StrainIndexWithReport(benchmark::State& state) {
  FillJob(0, 1);
  for (auto _ : state) {
    RichText report;
    RowOf(Tool::StrainIndex).writeReport(report);
    benchmark::DoNotOptimize(report);
  }
}
BENCHMARK(StrainIndexWithReport);

}  // namespace
}  // namespace halvane
