#include <windows.h>

#include "core/wide_text_windows.h"
#include "reporter/arguments.h"

namespace halvane {

std::vector<std::string> Arguments(int /*count*/, char** /*values*/) {
  // Those of `main` have lost the characters that the user's code page lacks.
  int count = 0;
  wchar_t** const values = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(Utf8Text(values[i]));
  LocalFree(values);
  return arguments;
}

}  // namespace halvane
