#pragma once

#include <string>

namespace halvane {

/// Something about a job file that its user should know.
struct JobProblem {
  bool isWarning = false;  ///< else it is why the file is refused, or read up to here only
  int line = 0;            ///< counted from 1; 0 where it is about another file
  std::string field;       ///< "Hand", "CtdLoadHeld(2, 7)"; empty behind the last field
  std::string found;       ///< the text as it stands, or the other file; empty where there is none
  std::string message;
};

}  // namespace halvane
