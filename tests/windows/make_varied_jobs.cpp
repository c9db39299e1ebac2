#include <cstdint>
#include <stdexcept>
#include <string>

#include "core/job_file.h"
#include "core/number_text.h"
#include "core/platform_file.h"
#include "tests/reporter/varied_job.h"

namespace halvane {
namespace {

void WriteJob(const std::string& folder, std::uint32_t number) {
  MakeVariedJob(number);
  const std::string path = folder + "/varied-" + std::to_string(number) + ".qjt";
  if (!WriteNewFile(path, JobFileBytes(Module1))) {
    throw std::runtime_error("the folder is not empty");
  }
}

}  // namespace
}  // namespace halvane

/// make_varied_jobs FOLDER COUNT: job files with a value in every field, the same ones each time.
int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) return 2;
  const double count = halvane::ReadsAs(arguments[2]);
  for (std::uint32_t number = 1; number <= count; ++number) halvane::WriteJob(arguments[1], number);
  return 0;
}
