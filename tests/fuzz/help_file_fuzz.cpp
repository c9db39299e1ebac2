#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/fuzz/help_file_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const halvane::HelpFileVerdict verdict =
      halvane::CheckHelpFile({reinterpret_cast<const char*>(data), size});
  if (!verdict.problem.empty()) {
    std::fprintf(stderr, "%s\n", verdict.problem.c_str());
    std::abort();
  }
  return 0;
}
