#include <iostream>

#include "tests/reporter/result_pages.h"

/// make_result_pages schema|page: writes the file of that name in docs/ to standard output.
int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) return 2;
  const std::string wish = arguments[1];
  if (wish != "schema" && wish != "page") return 2;
  std::cout << (wish == "schema" ? halvane::JsonSchema() : halvane::ResultPage());
  return 0;
}
