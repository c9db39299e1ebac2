#include "reporter/arguments.h"

namespace halvane {

std::vector<std::string> Arguments(int count, char** values) {
  return {values + (count > 0 ? 1 : 0), values + count};
}

}  // namespace halvane
