#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>
#include <string>

#include "benchmarks/benchmark_jobs.h"
#include "core/job_file.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;

/// A job file on the disk, and the job in memory.
std::string SavedJob() {
  FillJob(kTasks, 1);
  Module1.JobFileName = BenchmarkFolder() + "/job.qjt";
  WriteJobFile();
  return Module1.JobFileName;
}

/// What any program does that takes the same bytes in through a stream.
void ReadBytes(benchmark::State& state) {
  const std::string path = SavedJob();
  for (auto _ : state) {
    const std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    benchmark::DoNotOptimize(out);
  }
}
BENCHMARK(ReadBytes)->UseRealTime();

void ReadJob(benchmark::State& state) {
  Module1.JobFileName = SavedJob();
  for (auto _ : state) {
    if (OpenJobFile() != OpenOutcome::Opened) state.SkipWithError("is no job file");
  }
}
BENCHMARK(ReadJob)->UseRealTime();

/// What any program does that puts the same bytes out through a stream.
void WriteBytes(benchmark::State& state) {
  SavedJob();
  const std::string bytes = JobFileBytes(Module1);
  for (auto _ : state) {
    std::ostringstream out;
    out << bytes;
    benchmark::DoNotOptimize(out);
  }
}
BENCHMARK(WriteBytes)->UseRealTime();

/// The job as the bytes of its file, in memory.
void WriteJob(benchmark::State& state) {
  SavedJob();
  for (auto _ : state) benchmark::DoNotOptimize(JobFileBytes(Module1));
}
BENCHMARK(WriteJob)->UseRealTime();

/// The same bytes into a file that is there already, as a program without care does it.
void CopyFile(benchmark::State& state) {
  const std::string from = SavedJob();
  const std::string to = BenchmarkFolder() + "/copy.qjt";
  for (auto _ : state) {
    const std::ifstream in(from, std::ios::binary);
    std::ofstream out(to, std::ios::binary | std::ios::trunc);
    out << in.rdbuf();
    out.close();
    if (!out) state.SkipWithError("could not copy");
  }
}
BENCHMARK(CopyFile)->UseRealTime();

/// The whole save: the old file is kept until the new one has reached the disk.
void SaveJob(benchmark::State& state) {
  SavedJob();
  for (auto _ : state) WriteJobFile();
}
BENCHMARK(SaveJob)->UseRealTime();

/// The form's load, the computation and the report, as the reporter does them.
void ToolWithReport(benchmark::State& state, Tool tool) {
  FillJob(kTasks, 1);
  for (auto _ : state) {
    RichText report;
    if (!RowOf(tool).WriteReport(report)) state.SkipWithError("has no report");
    benchmark::DoNotOptimize(report);
  }
}
BENCHMARK_CAPTURE(ToolWithReport, si, Tool::StrainIndex)->UseRealTime();
BENCHMARK_CAPTURE(ToolWithReport, ocra, Tool::Ocra)->UseRealTime();
BENCHMARK_CAPTURE(ToolWithReport, ctd, Tool::Ctd)->UseRealTime();
BENCHMARK_CAPTURE(ToolWithReport, rula, Tool::Rula)->UseRealTime();
BENCHMARK_CAPTURE(ToolWithReport, reba, Tool::Reba)->UseRealTime();

}  // namespace
}  // namespace halvane
