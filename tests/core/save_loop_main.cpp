#include <cstdlib>
#include <string>

#include "core/number_text.h"
#include "core/platform_file.h"
#include "core/runtime_failure.h"

/// Saves contents of SIZE equal letters, one letter after the other of LETTERS, under PATH for
/// COUNT times: save_loop PATH LETTERS SIZE COUNT. Ends with 1 when a save fails.
int main(int argumentCount, char** arguments) {
  if (argumentCount != 5) return 2;
  const std::string letters = arguments[2];
  const auto size = static_cast<std::size_t>(halvane::ReadsAs(arguments[3]));
  const double count = halvane::ReadsAs(arguments[4]);
  try {
    for (std::size_t i = 0; static_cast<double>(i) < count; ++i) {
      halvane::FileReplacement file(arguments[1]);
      file.Write(std::string(size, letters[i % letters.size()]));
    }
  } catch (const halvane::RuntimeFailure&) {
    return 1;
  }
  return 0;
}
