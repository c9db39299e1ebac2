#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <string>

#include "benchmarks/benchmark_jobs.h"
#include "core/job_file.h"
#include "core/job_state.h"
#include "core/number_text.h"
#include "core/platform_file.h"

namespace {

constexpr int kTasks = 5;

/// One job file beside the others: "00001.qjt" and so on.
void WriteJob(const std::string& folder, int number) {
  std::string name = std::to_string(number);
  name.insert(0, 5 - std::min<std::size_t>(5, name.size()), '0');
  halvane::FillJob(kTasks, number);
  if (!halvane::WriteNewFile(folder + "/" + name + ".qjt",
                             halvane::JobFileBytes(halvane::Module1))) {
    throw std::runtime_error("the folder is not empty");
  }
}

}  // namespace

/// make_jobs FOLDER COUNT: job files of five tasks each, no two the same.
int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) return 2;
  const double count = halvane::ReadsAs(arguments[2]);
  for (int number = 1; number <= count; ++number) WriteJob(arguments[1], number);
  return 0;
}
