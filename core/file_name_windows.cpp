#include "core/file_name.h"

namespace halvane {

std::size_t LengthOfFolder(std::string_view path) {
  const std::size_t separator = path.find_last_of("/\\");
  if (separator != std::string_view::npos) return separator + 1;
  // "C:job.qjt" stands in the current folder of its disk.
  return path.size() >= 2 && path[1] == ':' ? 2 : 0;
}

std::string WithSeparator(std::string folder) {
  if (LengthOfFolder(folder) < folder.size()) folder += '\\';
  return folder;
}

}  // namespace halvane
