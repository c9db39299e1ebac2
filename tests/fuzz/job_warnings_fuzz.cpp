#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/fuzz/job_warnings_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string problem = halvane::ProblemOfCheck({reinterpret_cast<const char*>(data), size});
  if (!problem.empty()) {
    std::fprintf(stderr, "%s\n", problem.c_str());
    std::abort();
  }
  return 0;
}
