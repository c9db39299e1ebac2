#include <iostream>
#include <map>

#include "tests/reporter/completions.h"
#include "tests/reporter/result_pages.h"

/// make_result_pages schema|page|bash|zsh|fish: writes to standard output the file in docs/ or
/// packaging/completions/ that is made from the program's own tables.
int main(int argumentCount, char** arguments) {
  const std::map<std::string, std::string (*)()> pages{{"schema", halvane::JsonSchema},
                                                       {"page", halvane::ResultPage},
                                                       {"bash", halvane::BashCompletion},
                                                       {"zsh", halvane::ZshCompletion},
                                                       {"fish", halvane::FishCompletion}};
  const auto page = pages.find(argumentCount == 2 ? arguments[1] : "");
  if (page == pages.end()) return 2;
  std::cout << page->second();
  return 0;
}
